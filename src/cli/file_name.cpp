#include "cli/file_name.h"

#include <algorithm>

#include "cli/usage_error.h"
#include "graphics/path_text.h"

namespace orbelle::cli {

FileName ParseFileName(const std::string& word, const char* name) {
    FileName file;
    std::string path = word;
    const std::size_t colon = word.find(':');
    if (colon != std::string::npos &&
        std::ranges::find(kNamedFormats, word.substr(0, colon)) != std::end(kNamedFormats)) {
        file.Format = word.substr(0, colon);
        path = word.substr(colon + 1);
    }
    if (path.empty())
        throw UsageError(std::string(name) + " must be the name of a file");
    if (path != "-")
        file.Path = graphics::PathOfUtf8(path);
    return file;
}

}  // namespace orbelle::cli
