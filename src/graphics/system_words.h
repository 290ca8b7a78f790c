// What the system says when it refuses something.
#pragma once

#include <string>
#include <system_error>

namespace orbelle::graphics {

// In English and UTF-8, the same words for the same reason on every system, as far as it has them.
std::string WordsFor(const std::error_code& error);

}  // namespace orbelle::graphics
