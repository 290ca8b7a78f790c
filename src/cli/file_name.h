// Names of files on the command line, and what a verb does with them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "formats/icon_sets.h"

namespace orbelle::cli {

// "PATH", or "FORMAT:PATH" for what the path's own extension does not tell; "-" is standard input
// or output.
struct FileName {
    std::string Format;          // an extension without its dot; empty: not said
    std::filesystem::path Path;  // empty: standard input or output

    bool IsStandard() const { return Path.empty(); }
};

inline constexpr std::string_view kNamedFormats[] = {"png", "ico", "gif",  "jpg",
                                                     "bmp", "cur", "icns", "volf"};

// Throws UsageError for no name at all; `name` is the argument's name for the message.
FileName ParseFileName(const std::string& word, const char* name);

enum class FileRole { Opened, Imported, Read, Saved, Written, SetFolder };

// A file, or a folder of sets, that a verb is going to use.
struct FileUse {
    FileRole Role = FileRole::Read;
    FileName File;
    std::vector<formats::IconSet> Sets = {};  // of a SetFolder

    bool IsRead() const {
        return Role == FileRole::Opened || Role == FileRole::Imported || Role == FileRole::Read;
    }
};

}  // namespace orbelle::cli
