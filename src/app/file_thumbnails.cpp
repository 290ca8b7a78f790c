#include "app/file_thumbnails.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "app/shared_image.h"
#include "formats/file_preview.h"
#include "graphics/file_stamp.h"

namespace orbelle::app {

namespace fs = std::filesystem;

namespace {

using Paths = std::vector<fs::path>;

constexpr std::chrono::milliseconds kPatience{500};

struct Wish {
    Paths Files;
    std::size_t Most = 0;
    int Side = 0;
};

Paths FilesThatAreThere(const Wish& wish) {
    Paths there;
    std::error_code unknown;
    for (const fs::path& path : wish.Files)
        if (there.size() < wish.Most && fs::is_regular_file(path, unknown))
            there.push_back(path);
    return there;
}

QImage PictureOf(const fs::path& path, int side) {
    try {
        return SharedImage(formats::PreviewOfFile(path, side));
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace

// Outlives the object where a file on a share that does not answer keeps the thread.
struct FileThumbnails::Work {
    struct Kept {
        graphics::FileStamp Stamp;
        int Side = 0;
        QImage Picture;
    };

    std::mutex Mutex;
    std::condition_variable Ended;
    FileThumbnails* Owner = nullptr;  // null once it has gone
    Wish Wanted;
    int Number = 0;  // of the wish
    bool IsRunning = false;

    std::map<fs::path, Kept> Pictures;  // the thread's alone

    void Run();
    void Fulfil(const Wish& wish, int number);
    const QImage& Make(const fs::path& path, int side);
    // False: something else is wanted now.
    template <typename Tell>
    bool Report(int number, const Tell& tell);
};

template <typename Tell>
bool FileThumbnails::Work::Report(int number, const Tell& tell) {
    const std::scoped_lock lock(Mutex);
    if (!Owner || number != Number)
        return false;
    FileThumbnails* owner = Owner;
    QMetaObject::invokeMethod(
        owner,
        [owner, number, tell] {
            if (owner->work_->Number == number)
                tell(*owner);
        },
        Qt::QueuedConnection);
    return true;
}

void FileThumbnails::Work::Run() {
    for (int done = 0;;) {
        Wish wish;
        int number = 0;
        {
            const std::scoped_lock lock(Mutex);
            if (!Owner || done == Number) {
                IsRunning = false;
                Ended.notify_all();
                return;
            }
            wish = Wanted;
            number = Number;
        }
        try {
            Fulfil(wish, number);
        } catch (const std::exception&) {
            // There is not enough memory: the rest has no pictures.
        }
        done = number;
    }
}

void FileThumbnails::Work::Fulfil(const Wish& wish, int number) {
    const Paths there = FilesThatAreThere(wish);
    std::erase_if(Pictures, [&](const auto& kept) {
        return std::find(there.begin(), there.end(), kept.first) == there.end();
    });
    if (!Report(number, [there](FileThumbnails& owner) { emit owner.Found(there); }))
        return;
    for (const fs::path& path : there) {
        const QImage picture = Make(path, wish.Side);
        if (!Report(number, [=](FileThumbnails& owner) { emit owner.Made(path, picture); }))
            return;
    }
}

const QImage& FileThumbnails::Work::Make(const fs::path& path, int side) {
    const graphics::FileStamp stamp = graphics::StampOf(path);
    Kept& kept = Pictures[path];
    if (kept.Side != side || kept.Stamp != stamp)
        kept = {stamp, side, PictureOf(path, side)};
    return kept.Picture;
}

FileThumbnails::FileThumbnails() : work_(std::make_shared<Work>()) {
    work_->Owner = this;
}

FileThumbnails::~FileThumbnails() {
    std::unique_lock lock(work_->Mutex);
    work_->Owner = nullptr;
    work_->Ended.wait_for(lock, kPatience, [this] { return !work_->IsRunning; });
}

void FileThumbnails::Want(Paths paths, std::size_t most, int side) {
    const std::scoped_lock lock(work_->Mutex);
    work_->Wanted = {std::move(paths), most, side};
    ++work_->Number;
    if (work_->IsRunning)
        return;
    try {
        std::thread([work = work_] { work->Run(); }).detach();
        work_->IsRunning = true;
    } catch (const std::system_error&) {
        // No thread, no pictures.
    }
}

}  // namespace orbelle::app
