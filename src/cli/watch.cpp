#include "cli/watch.h"

#include <map>
#include <optional>
#include <utility>

#include "cli/file_watch.h"
#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;
using graphics::FileStamp;
using graphics::StampOf;

// A burst of changes is over when there was none for so long.
constexpr std::chrono::milliseconds kQuiet{50};

using Stamps = std::map<fs::path, FileStamp>;

class Watcher {
public:
    Watcher(Runner& runner, const BatchStreams& streams) : runner_(runner), streams_(streams) {}

    void Run();

private:
    std::vector<fs::path> Files() const;
    void Plan();
    bool FindDue(const Stamps& now);
    void ForgetOwnChanges();
    void WaitForQuiet();

    Runner& runner_;
    const BatchStreams& streams_;
    FileWatch watch_;
    bool isNew_ = false;               // the plan, which has not run
    std::optional<FileStamp> script_;  // when it was read
    Stamps seen_;                      // when the jobs ran
};

// While the script is wrong there are no jobs, and it is the only one.
std::vector<fs::path> Watcher::Files() const {
    std::vector<fs::path> files;
    if (const std::string script = runner_.ScriptFile(); !script.empty())
        files.push_back(graphics::PathOfUtf8(script));
    for (const Job& job : runner_.Jobs)
        files.insert(files.end(), job.Plan.Reads.begin(), job.Plan.Reads.end());
    return files;
}

void Watcher::Plan() {
    const bool isFirst = !script_;
    script_ = StampOf(graphics::PathOfUtf8(runner_.ScriptFile()));
    try {
        runner_.Plan();
        isNew_ = true;
    } catch (const UsageError& error) {
        if (isFirst)
            throw;
        streams_.Errors << "orbelle-cli: " << error.what() << std::endl;
    }
    if (isFirst && Files().empty())
        throw UsageError("--watch: no verb reads a file");
}

bool Watcher::FindDue(const Stamps& now) {
    bool isAny = std::exchange(isNew_, false);
    for (Job& job : runner_.Jobs) {
        for (const fs::path& file : job.Plan.Reads) {
            if (now.at(file) != seen_[file])
                job.IsDue = isAny = true;
        }
    }
    return isAny;
}

// The file behind a name tells who wrote it, whatever the name was then.
void Watcher::ForgetOwnChanges() {
    std::map<std::pair<std::uint64_t, std::uint64_t>, FileStamp> own;
    for (const Job& job : runner_.Jobs) {
        for (const WrittenFile& written : job.Written)
            own[{written.Stamp.Device, written.Stamp.Inode}] = written.Stamp;
    }
    for (auto& [path, stamp] : seen_) {
        const FileStamp now = StampOf(path);
        const auto found = own.find({now.Device, now.Inode});
        if (found != own.end() && now != FileStamp())
            stamp = found->second;
    }
}

void Watcher::WaitForQuiet() {
    while (watch_.Wait(kQuiet)) {
    }
}

void Watcher::Run() {
    Plan();
    while (streams_.Output) {
        // First watched, then looked at: a later change ends the wait.
        const std::vector<fs::path> files = Files();
        watch_.Watch(files);
        Stamps now;
        for (const fs::path& file : files)
            now.emplace(file, StampOf(file));
        if (StampOf(graphics::PathOfUtf8(runner_.ScriptFile())) != script_) {
            Plan();
        } else if (FindDue(now)) {
            seen_ = std::move(now);
            runner_.Run();
            ForgetOwnChanges();
            WaitForQuiet();
        } else {
            watch_.Wait();
            WaitForQuiet();
        }
    }
}

}  // namespace

void Watch(Runner& runner, const BatchStreams& streams) {
    Watcher(runner, streams).Run();
}

}  // namespace orbelle::cli
