#include <windows.h>

#include <algorithm>

#include "cli/wildcards.h"
#include "graphics/path_text.h"

namespace orbelle::cli {

std::vector<std::string> FilesMeantBy(const std::string& word) {
    std::vector<std::string> files;
    WIN32_FIND_DATAW entry{};
    const std::size_t name = word.find_last_of("/\\:") + 1;
    HANDLE search = INVALID_HANDLE_VALUE;
    if (word.find_first_of("*?", name) != std::string::npos)
        search = FindFirstFileW(graphics::PathOfUtf8(word).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return {word};
    do {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            files.push_back(word.substr(0, name) + graphics::Utf8Of(entry.cFileName));
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    std::ranges::sort(files);
    return files.empty() ? std::vector{word} : files;
}

}  // namespace orbelle::cli
