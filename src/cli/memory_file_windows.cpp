#include <windows.h>

#include <string>
#include <system_error>

#include "cli/memory_file.h"
#include "cli/workspace.h"
#include "graphics/path_text.h"
#include "graphics/system_words.h"
#include "graphics/unfinished_files.h"

namespace orbelle::cli {
namespace {

[[noreturn]] void ThrowLastError() {
    throw Failure(graphics::WordsFor(
        std::error_code(static_cast<int>(GetLastError()), std::system_category())));
}

std::filesystem::path TemporaryFolder() {
    wchar_t folder[MAX_PATH + 1];
    if (GetTempPathW(MAX_PATH + 1, folder) == 0)
        ThrowLastError();
    return folder;
}

std::filesystem::path NewTemporaryFile() {
    wchar_t name[MAX_PATH];
    if (GetTempFileNameW(TemporaryFolder().c_str(), L"orb", 0, name) == 0)
        ThrowLastError();
    return name;
}

}  // namespace

// It is removed, also when the program is told to end.
struct MemoryFile::Keeper {
    graphics::UnfinishedFile File{NewTemporaryFile()};
};

MemoryFile::MemoryFile() : keeper_(std::make_unique<Keeper>()) {
    path_ = keeper_->File.Path();
}

MemoryFile::~MemoryFile() = default;

bool IsOfMemoryFile(std::string_view message) {
    return message.starts_with(graphics::Utf8Of(TemporaryFolder() / u8"orb"));
}

}  // namespace orbelle::cli
