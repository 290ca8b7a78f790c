#include "formats/journal_file.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <system_error>
#include <utility>

#include "formats/locked_file.h"
#include "graphics/errors.h"
#include "graphics/path_text.h"

namespace orbelle::formats {

namespace fs = std::filesystem;

namespace {

constexpr char8_t kEnding[] = u8".journal";
constexpr char8_t kUnfinishedEnding[] = u8".new";

// Below that much waste nothing is won by writing the file anew.
constexpr std::uint64_t kMinWaste = 1 << 20;

// One that no other journal has, also of a process that had this one's number before.
fs::path NewName(const char8_t* ending) {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto count = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    return graphics::PathOfUtf8(std::to_string(OwnProcess()) + '-' + std::to_string(count)) +=
           ending;
}

}  // namespace

JournalFile::JournalFile(fs::path folder) : folder_(std::move(folder)) {}

JournalFile::~JournalFile() = default;

// A new file with these bytes in place of the one before. It has its name only when it is whole and
// locked, so that nobody takes it for one that was left behind.
void JournalFile::Replace(std::span<const std::uint8_t> bytes) {
    const fs::path unfinished = folder_ / NewName(kUnfinishedEnding);
    std::unique_ptr<LockedFile> file = LockedFile::Make(unfinished);
    try {
        file->Append(bytes);
        file->TakeName(path_, file_);
    } catch (...) {
        isWhole_ = isWhole_ && file_;
        std::error_code ignored;
        fs::remove(unfinished, ignored);
        throw;
    }
    file_ = std::move(file);
}

void JournalFile::Keep(const document::Document& document, std::int64_t time) {
    if (isWhole_) {
        isWhole_ = false;  // until it's done: the encoder goes ahead of the file
        file_->Append(encoder_.Append(document, time));
    } else {
        std::error_code error;
        fs::create_directories(folder_, error);
        if (path_.empty())
            path_ = folder_ / NewName(kEnding);
        encoder_ = {};
        Replace(encoder_.Append(document, time));
    }
    isWhole_ = true;
}

void JournalFile::Compact() {
    if (!isWhole_ || encoder_.Size() < 2 * encoder_.NeededSize() + kMinWaste)
        return;
    std::vector<std::uint8_t> bytes;
    for (const JournalEncoder::Part& part : encoder_.Needed()) {
        const std::vector<std::uint8_t> read = file_->Read(part.From, part.Size);
        bytes.insert(bytes.end(), read.begin(), read.end());
    }
    Replace(bytes);
    encoder_.Compacted();
}

void JournalFile::Remove() noexcept {
    std::error_code ignored;
    if (file_)
        fs::remove(path_, ignored);
    file_.reset();
    path_.clear();
    encoder_ = {};
    isWhole_ = false;
}

FoundJournal::FoundJournal(fs::path path, std::unique_ptr<LockedFile> file, JournalEntry entry)
    : path_(std::move(path)), file_(std::move(file)), entry_(std::move(entry)) {}
FoundJournal::FoundJournal(FoundJournal&&) noexcept = default;
FoundJournal& FoundJournal::operator=(FoundJournal&&) noexcept = default;
FoundJournal::~FoundJournal() = default;

void FoundJournal::Remove() noexcept {
    std::error_code ignored;
    fs::remove(path_, ignored);
    file_.reset();
}

std::vector<FoundJournal> FindJournals(const fs::path& folder) {
    std::vector<FoundJournal> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const fs::path path = entry->path();
        if (path.extension() != kEnding)
            continue;
        try {
            std::unique_ptr<LockedFile> file = LockedFile::Find(path);
            std::optional<JournalEntry> journal;
            if (file)
                journal = ReadJournal(*file);
            if (journal)
                found.emplace_back(path, std::move(file), std::move(*journal));
        } catch (const Error&) {
            // The others may be readable.
        }
    }
    std::ranges::sort(found, [](const FoundJournal& a, const FoundJournal& b) {
        return a.Entry().Time > b.Entry().Time;
    });
    return found;
}

}  // namespace orbelle::formats
