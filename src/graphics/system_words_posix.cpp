#include "graphics/system_words.h"

namespace orbelle::graphics {

std::string WordsFor(const std::error_code& error) {
    return error.message();
}

}  // namespace orbelle::graphics
