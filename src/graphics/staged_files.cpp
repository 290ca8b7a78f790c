#include "graphics/staged_files.h"

#include <set>
#include <system_error>

#include "graphics/detail/output_file.h"
#include "graphics/detail/temporary_names.h"
#include "graphics/errors.h"
#include "graphics/system_words.h"

namespace orbelle::graphics {
namespace {

namespace fs = std::filesystem;
using detail::OutputFile;

// As far as the user's mask leaves them.
constexpr fs::perms kNewPermissions = fs::perms(0666);

fs::path FolderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : u8".";
}

// Failures of the system become those of the file.
template <typename Work>
void For(const fs::path& path, const Work& work) {
    try {
        work();
    } catch (const std::system_error& error) {
        throw FileError(path, WordsFor(error.code()));
    }
}

}  // namespace

StagedFiles::StagedFiles(std::span<const fs::path> targets) {
    try {
        for (const fs::path& path : targets) {
            For(path, [&] {
                MakeFolder(FolderOf(path));
                const bool exists = fs::exists(path);
                if (exists && !fs::is_regular_file(path))
                    throw FileError(path, "there is something else of that name");
                File& file = files_.emplace_back();
                file.Path = path;
                file.Target = exists ? fs::canonical(path) : path;
                detail::RemoveStaleFiles(FolderOf(file.Target));
            });
        }
    } catch (...) {
        RemoveFolders();
        throw;
    }
}

StagedFiles::~StagedFiles() {
    files_.clear();
    RemoveFolders();
}

void StagedFiles::MakeFolder(const fs::path& folder) {
    if (fs::exists(folder))
        return;
    if (folder.has_parent_path() && folder.parent_path() != folder)
        MakeFolder(folder.parent_path());
    madeFolders_.push_back(folder);
    // It is there already when its name ends in a dot or in nothing.
    if (!fs::create_directory(folder))
        madeFolders_.pop_back();
}

void StagedFiles::Stage(std::size_t index, std::span<const std::uint8_t> bytes) {
    File& file = files_[index];
    For(file.Path, [&] {
        file.New.emplace(detail::TemporaryNameIn(FolderOf(file.Target)));
        OutputFile output = OutputFile::New(file.New->Path(), kNewPermissions);
        if (fs::exists(file.Target))
            output.TakeAttributesOf(OutputFile::Existing(file.Target));
        output.Write(bytes);
        output.Flush();
        output.Close();
    });
}

void StagedFiles::PutInPlace(File& file) {
    if (fs::is_directory(file.Target))
        throw std::system_error(std::make_error_code(std::errc::is_a_directory));
    if (fs::exists(file.Target)) {
        detail::RequireReplaceable(file.Target);
        file.Old = detail::TemporaryNameIn(FolderOf(file.Target));
        std::error_code hasNoLinks;
        fs::create_hard_link(file.Target, file.Old, hasNoLinks);
        if (hasNoLinks)
            fs::rename(file.Target, file.Old);
    }
    detail::TakeName(file.New->Path(), file.Target);
    file.New->Finish();
    file.IsInPlace = true;
}

void StagedFiles::PutBack(File& file) noexcept {
    std::error_code ignored;
    if (!file.Old.empty()) {
        fs::rename(file.Old, file.Target, ignored);
        // Two names of one file stay when one of them is to take the other's place.
        fs::remove(file.Old, ignored);
    } else if (file.IsInPlace) {
        fs::remove(file.Target, ignored);
    }
}

void StagedFiles::Commit() {
    // Nothing may fail once the files have their names.
    std::set<fs::path> folders;
    for (const File& file : files_)
        folders.insert(FolderOf(file.Target));
    const HeldSignals held;
    try {
        for (File& file : files_)
            For(file.Path, [&] { PutInPlace(file); });
    } catch (...) {
        for (File& file : files_)
            PutBack(file);
        throw;
    }
    madeFolders_.clear();
    std::error_code ignored;
    for (const File& file : files_) {
        if (!file.Old.empty())
            fs::remove(file.Old, ignored);
    }
    for (const fs::path& folder : folders)
        detail::FlushFolder(folder);
}

void StagedFiles::RemoveFolders() noexcept {
    std::error_code ignored;
    for (; !madeFolders_.empty(); madeFolders_.pop_back())
        fs::remove(madeFolders_.back(), ignored);
}

}  // namespace orbelle::graphics
