#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <string>
#include <utility>

#include "graphics/unfinished_files.h"

namespace orbelle::graphics {
namespace {

// What a signal's handler may look at: no memory that another thread could give back meanwhile.
struct Place {
    enum { kFree, kBeingFilled, kFilled };

    std::atomic<int> State = kFree;
    char Name[PATH_MAX] = {};
};

// A file that finds none is left to the next save into its folder.
constexpr int kPlaces = 64;
constexpr int kNowhere = -1;
std::array<Place, kPlaces> places;

std::atomic<int> holders = 0;
std::atomic<int> heldSignal = 0;

int TakePlace(const std::string& name) {
    for (int i = 0; i < kPlaces && name.size() < PATH_MAX; ++i) {
        Place& place = places[static_cast<std::size_t>(i)];
        int state = Place::kFree;
        if (!place.State.compare_exchange_strong(state, Place::kBeingFilled))
            continue;
        std::memcpy(place.Name, name.c_str(), name.size() + 1);
        place.State = Place::kFilled;
        return i;
    }
    return kNowhere;
}

extern "C" void EndBy(int signal) {
    const int error = errno;
    int none = 0;
    // The last holder may have gone meanwhile, and have seen no signal.
    if (holders > 0 && heldSignal.compare_exchange_strong(none, signal) && holders > 0) {
        errno = error;
        return;
    }
    for (Place& place : places) {
        if (place.State == Place::kFilled)
            unlink(place.Name);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);  // when the handler returns
}

}  // namespace

void EndCleanlyOnSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN)
            continue;
        action.sa_handler = EndBy;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

UnfinishedFile::UnfinishedFile(std::filesystem::path path)
    : path_(std::move(path)), place_(TakePlace(path_.native())) {}

UnfinishedFile::~UnfinishedFile() {
    if (!isFinished_)
        unlink(path_.c_str());
    Finish();
}

void UnfinishedFile::Finish() {
    isFinished_ = true;
    if (place_ != kNowhere)
        places[static_cast<std::size_t>(std::exchange(place_, kNowhere))].State = Place::kFree;
}

HeldSignals::HeldSignals() {
    ++holders;
}

HeldSignals::~HeldSignals() {
    if (--holders == 0 && heldSignal != 0)
        std::raise(heldSignal);
}

}  // namespace orbelle::graphics
