// Several files that are there together or not at all.
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "graphics/unfinished_files.h"

namespace orbelle::graphics {

// Each file is made beside the one that it will replace, and only when all are on the disk they get
// their names. Until the last one has its own, the old files are kept: a failure (FileError with
// the path and the system's reason) brings them back, and leaves neither new files nor new folders.
//
// Permissions and links to files stay as with WriteFile; a file that has several names is one of
// its own afterwards.
class StagedFiles {
public:
    // Makes the folders of these files.
    explicit StagedFiles(std::span<const std::filesystem::path> targets);
    // Removes all that has not been committed.
    ~StagedFiles();
    StagedFiles(const StagedFiles&) = delete;
    StagedFiles& operator=(const StagedFiles&) = delete;

    // Returns when the bytes of that file are on the disk. Several threads may stage different
    // files at the same time.
    void Stage(std::size_t index, std::span<const std::uint8_t> bytes);

    // Once, with all files staged.
    void Commit();

private:
    struct File {
        std::filesystem::path Path;    // as it was named
        std::filesystem::path Target;  // where links lead to
        std::optional<UnfinishedFile> New;
        std::filesystem::path Old;  // another name of what the target was; empty: nothing
        bool IsInPlace = false;
    };

    void MakeFolder(const std::filesystem::path& folder);
    static void PutInPlace(File& file);
    static void PutBack(File& file) noexcept;
    void RemoveFolders() noexcept;

    std::deque<File> files_;
    std::vector<std::filesystem::path> madeFolders_;  // outer ones first
};

}  // namespace orbelle::graphics
