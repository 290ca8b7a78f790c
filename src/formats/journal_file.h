// Journals as files in a folder, one for each process that has unsaved work.
#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include "formats/journal.h"

namespace orbelle::formats {

class LockedFile;

// The journal of this process. As long as it lives no other process takes the file for one that was
// left behind.
class JournalFile {
public:
    // The folder is made when it is missing; the file with the first document. Throws nothing.
    explicit JournalFile(std::filesystem::path folder);
    // Leaves the file where it is.
    ~JournalFile();
    JournalFile(const JournalFile&) = delete;
    JournalFile& operator=(const JournalFile&) = delete;

    // The journal holds the document from here on, on the disk: what is new is appended. Throws
    // FileError; the journal holds what it held before, and the next call writes it anew.
    void Keep(const document::Document& document, std::int64_t time);
    // Makes the file small again when most of it is needed no more. Throws FileError, with the file
    // as it was.
    void Compact();
    // Takes the file away: nothing needs it any more. Keep makes another.
    void Remove() noexcept;

private:
    void Replace(std::span<const std::uint8_t> bytes);

    std::filesystem::path folder_;
    std::filesystem::path path_;
    std::unique_ptr<LockedFile> file_;
    JournalEncoder encoder_;
    bool isWhole_ = false;  // the file holds what the encoder has made
};

// A journal that was left behind. As long as it lives no other process finds it.
class FoundJournal {
public:
    FoundJournal(std::filesystem::path path, std::unique_ptr<LockedFile> file, JournalEntry entry);
    FoundJournal(FoundJournal&&) noexcept;
    FoundJournal& operator=(FoundJournal&&) noexcept;
    ~FoundJournal();

    const JournalEntry& Entry() const { return entry_; }
    void Remove() noexcept;

private:
    std::filesystem::path path_;
    std::unique_ptr<LockedFile> file_;
    JournalEntry entry_;
};

// The journals in the folder whose process lives no more, the newest first. Those that hold no
// document are passed over. No such folder, or one that can't be read: none.
std::vector<FoundJournal> FindJournals(const std::filesystem::path& folder);

}  // namespace orbelle::formats
