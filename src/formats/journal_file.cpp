#include "formats/journal_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string>
#include <system_error>
#include <utility>

#include "graphics/errors.h"

namespace orbelle::formats {

namespace fs = std::filesystem;

namespace {

constexpr char kEnding[] = ".journal";
constexpr char kUnfinishedEnding[] = ".new";

// Below that much waste nothing is won by writing the file anew.
constexpr std::uint64_t kMinWaste = 1 << 20;

[[noreturn]] void ThrowLastError(const fs::path& path) {
    throw graphics::FileError(path, std::error_code(errno, std::generic_category()).message());
}

// One that no other journal has, also of a process that had this one's number before.
std::string NewName() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::to_string(::getpid()) + '-' +
           std::to_string(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

}  // namespace

class LockedFile : public JournalSource {
public:
    // Throws FileError; what exists already is not taken.
    static std::unique_ptr<LockedFile> Make(const fs::path& path) {
        std::unique_ptr<LockedFile> file(new LockedFile(
            path, ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR)));
        if (file->descriptor_ < 0)
            ThrowLastError(path);
        // Where there are no locks the journal is found by nobody, and nothing else is lost.
        ::flock(file->descriptor_, LOCK_EX | LOCK_NB);
        return file;
    }

    // Null when it can't be read, is locked by someone, or has been replaced meanwhile.
    static std::unique_ptr<LockedFile> Find(const fs::path& path) {
        std::unique_ptr<LockedFile> file(
            new LockedFile(path, ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)));
        struct stat opened {
        }, named{};
        if (file->descriptor_ < 0 || ::flock(file->descriptor_, LOCK_EX | LOCK_NB) != 0 ||
            ::fstat(file->descriptor_, &opened) != 0 || ::stat(path.c_str(), &named) != 0 ||
            !S_ISREG(opened.st_mode) || opened.st_ino != named.st_ino)
            return nullptr;
        return file;
    }

    ~LockedFile() {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

    std::uint64_t Size() override {
        struct stat found {};
        if (::fstat(descriptor_, &found) != 0)
            ThrowLastError(path_);
        return static_cast<std::uint64_t>(found.st_size);
    }

    std::vector<std::uint8_t> Read(std::uint64_t from, std::uint64_t count) override {
        if (from > Size() || count > Size() - from)
            throw graphics::FileError(path_, "the file is cut short");
        std::vector<std::uint8_t> bytes(count);
        for (std::size_t done = 0; done < bytes.size();) {
            const ssize_t read = ::pread(descriptor_, bytes.data() + done, bytes.size() - done,
                                         static_cast<off_t>(from + done));
            if (read < 0 && errno == EINTR)
                continue;
            if (read < 0)
                ThrowLastError(path_);
            if (read == 0)
                throw graphics::FileError(path_, "the file is cut short");
            done += static_cast<std::size_t>(read);
        }
        return bytes;
    }

    // At the end; throws FileError with the file as long as before.
    void Append(std::span<const std::uint8_t> bytes) {
        const std::uint64_t end = Size();
        try {
            for (std::size_t done = 0; done < bytes.size();) {
                const ssize_t written =
                    ::pwrite(descriptor_, bytes.data() + done, bytes.size() - done,
                             static_cast<off_t>(end + done));
                if (written < 0 && errno == EINTR)
                    continue;
                if (written < 0)
                    ThrowLastError(path_);
                done += static_cast<std::size_t>(written);
            }
            if (::fdatasync(descriptor_) != 0)
                ThrowLastError(path_);
        } catch (...) {
            // What is left there is a record cut short, which a reader passes over.
            [[maybe_unused]] const int ignored = ::ftruncate(descriptor_, static_cast<off_t>(end));
            throw;
        }
    }

private:
    LockedFile(fs::path path, int descriptor) : path_(std::move(path)), descriptor_(descriptor) {}

    fs::path path_;
    int descriptor_;
};

JournalFile::JournalFile(fs::path folder) : folder_(std::move(folder)) {}

JournalFile::~JournalFile() = default;

// A new file with these bytes, for the path. It has its name only when it is whole and locked, so
// that nobody takes it for one that was left behind.
std::unique_ptr<LockedFile> JournalFile::Replace(const fs::path& path,
                                                 std::span<const std::uint8_t> bytes) const {
    const fs::path unfinished = folder_ / (NewName() + kUnfinishedEnding);
    std::unique_ptr<LockedFile> file = LockedFile::Make(unfinished);
    std::error_code error;
    try {
        file->Append(bytes);
        fs::rename(unfinished, path, error);
        if (error)
            throw graphics::FileError(path, error.message());
    } catch (...) {
        fs::remove(unfinished, error);
        throw;
    }
    return file;
}

void JournalFile::Keep(const document::Document& document, std::int64_t time) {
    if (isWhole_) {
        isWhole_ = false;  // until it's done: the encoder goes ahead of the file
        file_->Append(encoder_.Append(document, time));
    } else {
        std::error_code error;
        fs::create_directories(folder_, error);
        if (path_.empty())
            path_ = folder_ / (NewName() + kEnding);
        encoder_ = {};
        file_ = Replace(path_, encoder_.Append(document, time));
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
    file_ = Replace(path_, bytes);
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
