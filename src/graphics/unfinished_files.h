// Files that a program which is told to end must not leave behind.
#pragma once

#include <filesystem>

namespace orbelle::graphics {

// From here on SIGINT, SIGTERM and SIGHUP first remove the unfinished files and then end the
// program as they would have done. What is being written in place is finished before, unless a
// second signal comes. Signals that are ignored stay so.
void EndCleanlyOnSignals();

// The name of a file that is being made. Unless it is Finished the file is removed when this goes,
// and when a signal ends the program.
class UnfinishedFile {
public:
    explicit UnfinishedFile(std::filesystem::path path);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    void Finish();

private:
    std::filesystem::path path_;
    int place_;  // in the list that a signal goes through
    bool isFinished_ = false;
};

// While one of them lives, signals to end wait.
class HeldSignals {
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
};

}  // namespace orbelle::graphics
