// Files that one process has to itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include "formats/journal.h"

namespace orbelle::formats {

int OwnProcess();

// An open file that this process has locked. The lock goes with the process, however that ends.
class LockedFile : public JournalSource {
public:
    // Throws FileError; what exists already is not taken. Where there are no locks it goes without:
    // then Find finds it nowhere.
    static std::unique_ptr<LockedFile> Make(const std::filesystem::path& path);

    // Null when it can't be read, is locked by someone, or has been replaced meanwhile.
    static std::unique_ptr<LockedFile> Find(const std::filesystem::path& path);

    ~LockedFile();
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

    std::uint64_t Size() override;
    std::vector<std::uint8_t> Read(std::uint64_t from, std::uint64_t count) override;

    // At the end, on the disk; throws FileError with the file as long as before.
    void Append(std::span<const std::uint8_t> bytes);

    // Takes the name, also from `old`, which may be null. A system that gives nobody the name of an
    // open file closes that before. Throws FileError.
    void TakeName(const std::filesystem::path& path, std::unique_ptr<LockedFile>& old);

private:
    LockedFile(std::filesystem::path path, int descriptor);

    // These do a part of it, at least a byte; nothing is read at the end. Throw FileError.
    std::size_t ReadAt(std::uint64_t from, std::span<std::uint8_t> to);
    std::size_t WriteAt(std::uint64_t place, std::span<const std::uint8_t> bytes);
    void Flush();
    void CutTo(std::uint64_t size) noexcept;

    std::filesystem::path path_;  // as it was opened
    int descriptor_;              // the system's number for it; -1: not open
};

}  // namespace orbelle::formats
