#include "cli/file_name.h"

#include <algorithm>

#include "cli/usage_error.h"

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
        file.Path = path;
    return file;
}

}  // namespace orbelle::cli
