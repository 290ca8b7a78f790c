// What the core tells, in the language of the user.
#pragma once

#include <QString>
#include <string_view>

namespace orbelle::app {

// Of a message of the core, the name of an undo step, a tip. Whatever is not known, as what the
// system or a library says, stays as it is; so does a path before a message.
QString TranslatedText(std::string_view text);

}  // namespace orbelle::app
