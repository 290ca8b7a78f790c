#include <windows.h>

#include "graphics/system_words.h"

namespace orbelle::graphics {

// The system's own words are in its language and code page.
std::string WordsFor(const std::error_code& error) {
    if (error.category() != std::system_category())
        return error.message();
    const int code = error.value();
    if (code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION ||
        code == ERROR_USER_MAPPED_FILE)
        return "another program keeps the file open";
    const std::error_condition reason = error.default_error_condition();
    if (reason.category() == std::generic_category())
        return reason.message();
    return "error " + std::to_string(code) + " of the system";
}

}  // namespace orbelle::graphics
