#include "editing/recovery.h"

#include <chrono>
#include <utility>

#include "graphics/state_folder.h"

namespace orbelle::editing {
namespace {

using namespace std::chrono_literals;

// So long nothing has to be written before the file is made small again.
constexpr auto kIdle = 3s;

std::int64_t Now() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

std::filesystem::path JournalFolder() {
    return graphics::StateFolder() / u8"journals";
}

Recovery::Recovery(std::filesystem::path folder, std::function<void(const std::string&)> trouble)
    : trouble_(std::move(trouble)),
      journal_(std::move(folder)),
      thread_([this](const std::stop_token& stop) { Write(stop); }) {}

Recovery::~Recovery() {
    thread_.request_stop();
    thread_.join();
    if (!keeps_)
        journal_.Remove();
}

void Recovery::Note(const Editor& editor, const Changes& changes) {
    if (!std::holds_alternative<std::monostate>(editor.Drag))
        return;
    if (!changes.Pixels && !changes.Stack && !changes.Title)
        return;
    std::optional<document::Document> document;
    if (editor.DocumentExists && editor.Document.Modified)
        document = editor.Document;
    const std::lock_guard lock(mutex_);
    next_ = std::move(document);
    wake_.notify_one();
}

bool Recovery::Flush() {
    std::unique_lock lock(mutex_);
    done_.wait(lock, [this] { return !next_ && !isWriting_; });
    return holdsAll_;
}

void Recovery::EndAtOnce() {
    Flush();
    keeps_ = true;
}

void Recovery::Write(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    const auto isWanted = [this] { return next_.has_value(); };
    while (true) {
        if (!wake_.wait_for(lock, stop, kIdle, isWanted)) {
            if (stop.stop_requested())
                return;
            lock.unlock();
            Try([this] { journal_.Compact(); });
            lock.lock();
            wake_.wait(lock, stop, isWanted);
        }
        if (!next_)
            return;
        std::optional<document::Document> document = std::move(*next_);
        next_.reset();
        isWriting_ = true;
        lock.unlock();
        const bool written = Try([&] {
            if (document)
                journal_.Keep(*document, Now());
            else
                journal_.Remove();
        });
        document.reset();
        lock.lock();
        isWriting_ = false;
        holdsAll_ = written;
        done_.notify_all();
    }
}

// No trouble with the journal may disturb the work.
bool Recovery::Try(const std::function<void()>& work) {
    try {
        work();
        hadTrouble_ = false;
        return true;
    } catch (const std::bad_alloc&) {
        // The next document may fit.
        return false;
    } catch (const std::exception& failure) {
        if (!std::exchange(hadTrouble_, true))
            trouble_(failure.what());
        return false;
    }
}

}  // namespace orbelle::editing
