#include <windows.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

#include "graphics/unfinished_files.h"

namespace orbelle::graphics {
namespace {

constexpr DWORD kLook = 5;  // milliseconds
constexpr int kNowhere = -1;

// The console tells what happens in a thread of its own, which may wait.
struct Names {
    std::mutex Mutex;
    std::vector<std::filesystem::path> Places;  // empty: free
};

// As long as there are threads.
Names& AllNames() {
    static auto* const names = new Names;
    return *names;
}

std::atomic<int> holders = 0;
std::atomic<int> requests = 0;

BOOL WINAPI EndBy(DWORD) {
    const int request = ++requests;
    while (holders > 0 && requests == request)
        Sleep(kLook);
    Names& names = AllNames();
    const std::scoped_lock lock(names.Mutex);
    // What another thread writes just now goes as soon as it is closed.
    for (const std::filesystem::path& name : names.Places) {
        if (!name.empty())
            DeleteFileW(name.c_str());
    }
    return FALSE;  // so that the program is ended
}

}  // namespace

void EndCleanlyOnSignals() {
    SetConsoleCtrlHandler(EndBy, TRUE);
}

UnfinishedFile::UnfinishedFile(std::filesystem::path path) : path_(std::move(path)) {
    Names& names = AllNames();
    const std::scoped_lock lock(names.Mutex);
    const auto place = std::ranges::find_if(names.Places, &std::filesystem::path::empty);
    place_ = static_cast<int>(place - names.Places.begin());
    if (place == names.Places.end())
        names.Places.push_back(path_);
    else
        *place = path_;
}

UnfinishedFile::~UnfinishedFile() {
    if (!isFinished_)
        DeleteFileW(path_.c_str());
    Finish();
}

void UnfinishedFile::Finish() {
    isFinished_ = true;
    const int place = std::exchange(place_, kNowhere);
    if (place == kNowhere)
        return;
    Names& names = AllNames();
    const std::scoped_lock lock(names.Mutex);
    names.Places[static_cast<std::size_t>(place)].clear();
}

HeldSignals::HeldSignals() {
    ++holders;
}

HeldSignals::~HeldSignals() {
    --holders;
}

}  // namespace orbelle::graphics
