#include "cli/batch.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <sstream>
#include <thread>

#include "cli/plan.h"
#include "graphics/work_places.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

// So many files more than compute at a time are begun: a file is done when it is on the disk.
constexpr std::size_t kWaitingForDisk = 6;

// One file's part.
struct Job {
    std::string File;
    std::vector<Call> Calls;
};

struct WrittenFile {
    std::string Path;
    std::uintmax_t Bytes = 0;
};

struct Result {
    std::string Output;
    std::string Notes;
    std::string Error;  // empty: it went well
    std::vector<WrittenFile> Written;
};

// A path that is told apart from options, numbers, verbs and formats in whatever place it stands.
std::string PlainPath(const std::string& file) {
    const bool isSpecial =
        file.find('/') == std::string::npos &&
        (file.starts_with('-') || FindVerb(file) || !ParseFileName(file, "FILE").Format.empty());
    return isSpecial ? "./" + file : file;
}

// Who reads and writes what. The names of one file in several spellings are one.
class Claims {
public:
    // Throws UsageError when another file claimed one of them.
    void Add(const std::string& file, const Plan& plan);
    // To be called at the end: who reads what another one writes.
    void CheckReads() const;

private:
    void Claim(const std::string& file, const std::string& key, const std::string& what);

    std::map<std::string, std::string> writers_;
    std::vector<std::pair<std::string, fs::path>> reads_;  // the file, what it reads
};

std::string KeyOf(const fs::path& path) {
    std::error_code error;
    const fs::path key = fs::weakly_canonical(fs::absolute(path), error);
    return (error ? fs::absolute(path).lexically_normal() : key).string();
}

void Claims::Claim(const std::string& file, const std::string& key, const std::string& what) {
    const auto [place, isNew] = writers_.emplace(key, file);
    if (!isNew)
        throw UsageError(place->second + " and " + file + " would both " + what);
}

void Claims::Add(const std::string& file, const Plan& plan) {
    std::set<std::string> own;  // what the verbs of one file write twice
    for (const fs::path& path : plan.Writes) {
        const std::string key = KeyOf(path);
        if (own.insert(key).second)
            Claim(file, key, "write " + path.string());
    }
    if (plan.WritesStandardOutput)
        Claim(file, "-", "write to standard output");
    if (plan.ReadsStandardInput)
        Claim(file, "<", "read standard input");
    for (const fs::path& path : plan.Reads)
        reads_.emplace_back(file, path);
}

void Claims::CheckReads() const {
    for (const auto& [file, path] : reads_) {
        const auto writer = writers_.find(KeyOf(path));
        if (writer != writers_.end() && writer->second != file)
            throw UsageError(file + " would read " + path.string() + ", which " + writer->second +
                             " writes");
    }
}

std::vector<Job> PlanJobs(const Batch& batch) {
    std::vector<Job> jobs;
    Claims claims;
    for (const std::string& file : batch.Files) {
        if (file.empty())
            throw UsageError("--each: FILE must be the name of a file");
        std::vector<VerbLine> lines = batch.Lines;
        for (VerbLine& line : lines)
            line.Words = FillIn(line.Words, file);
        Job& job = jobs.emplace_back(Job{file, ParseLines(lines)});
        Plan plan = PlanRun(job.Calls, batch.InputIsTaken);
        if (batch.IsJson && plan.WritesStandardOutput)
            throw UsageError("--json and a file would both go to standard output");
        plan.ReadsStandardInput = plan.ReadsStandardInput && !batch.InputIsTaken;
        claims.Add(file, plan);
    }
    claims.CheckReads();
    return jobs;
}

// Each once, as large as it is at the end.
std::vector<WrittenFile> Measure(const std::vector<fs::path>& paths) {
    std::vector<WrittenFile> files;
    for (const fs::path& path : paths) {
        if (std::ranges::find(files, path.string(), &WrittenFile::Path) != files.end())
            continue;
        std::error_code error;
        const std::uintmax_t bytes = fs::file_size(path, error);
        files.push_back({path.string(), error ? 0 : bytes});
    }
    return files;
}

Result RunJob(const Job& job) {
    std::ostringstream output, notes;
    Result result;
    try {
        Workspace workspace(output);
        try {
            RunCalls(job.Calls, workspace, notes);
        } catch (const Failure& failure) {
            result.Error = failure.what();
        }
        result.Written = Measure(workspace.Written);
        result.Output = std::move(output).str();
        result.Notes = std::move(notes).str();
    } catch (const std::bad_alloc&) {
        result.Error = "there is not enough memory";
    } catch (const std::exception& error) {
        result.Error = error.what();
    }
    return result;
}

std::string DescribeResult(const std::string& file, const Result& result) {
    using Json = nlohmann::ordered_json;
    Json json = {{"file", file}, {"ok", result.Error.empty()}};
    if (!result.Error.empty())
        json["error"] = result.Error;
    json["written"] = Json::array();
    for (const WrittenFile& written : result.Written)
        json["written"].push_back({{"path", written.Path}, {"bytes", written.Bytes}});
    json["output"] = Json::array();
    std::istringstream lines(result.Output);
    for (std::string line; std::getline(lines, line);)
        json["output"].push_back(line);
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

// Gives out jobs, and tells how they ended in their order.
class Foreman {
public:
    Foreman(const std::vector<Job>& jobs, const Batch& batch, const BatchStreams& streams)
        : jobs_(jobs), batch_(batch), streams_(streams), results_(jobs.size()) {}

    // True when none failed. Throws what went wrong while telling.
    bool RunAll();

private:
    std::optional<std::size_t> Begin();
    void End(std::size_t job, Result result);
    void Work();
    void Tell(const std::string& file, const Result& result);
    void ShowProgress();

    const std::vector<Job>& jobs_;
    const Batch& batch_;
    const BatchStreams& streams_;
    // One more than threads are to compute: systems are slow to give a core that waits another one.
    graphics::WorkPlaces places_{static_cast<std::size_t>(batch_.Jobs) + (batch_.Jobs > 1 ? 1 : 0)};

    std::mutex mutex_;  // for all that follows and the streams
    std::vector<std::optional<Result>> results_;
    std::size_t begun_ = 0;
    std::size_t ended_ = 0;
    std::size_t told_ = 0;
    bool anyFailed_ = false;
    std::exception_ptr problem_;  // with the streams
};

std::optional<std::size_t> Foreman::Begin() {
    const std::lock_guard lock(mutex_);
    if (begun_ == jobs_.size() || problem_ || (anyFailed_ && !batch_.KeepsGoing))
        return std::nullopt;
    return begun_++;
}

void Foreman::End(std::size_t job, Result result) {
    const std::lock_guard lock(mutex_);
    anyFailed_ = anyFailed_ || !result.Error.empty();
    results_[job] = std::move(result);
    ++ended_;
    try {
        for (; !problem_ && told_ < begun_ && results_[told_]; ++told_) {
            Tell(jobs_[told_].File, *results_[told_]);
            results_[told_] = Result();  // what was told is needed no more
        }
        ShowProgress();
    } catch (const std::exception&) {
        problem_ = std::current_exception();
    }
}

void Foreman::Tell(const std::string& file, const Result& result) {
    const std::string output = batch_.IsJson ? DescribeResult(file, result) : result.Output;
    std::string errors = result.Notes;
    if (!result.Error.empty())
        errors += "orbelle-cli: " + file + ": " + result.Error + '\n';
    if (!errors.empty()) {
        const char* const eraseLine = streams_.ShowsProgress ? "\r\x1B[K" : "";
        streams_.Errors << eraseLine << errors << std::flush;
    }
    if (!output.empty()) {
        streams_.Output << output;
        RequirePrinted(streams_.Output);
    }
}

void Foreman::ShowProgress() {
    if (!streams_.ShowsProgress)
        return;
    streams_.Errors << "\r\x1B[K";
    if (ended_ < jobs_.size())
        streams_.Errors << ended_ << " of " << jobs_.size();
    streams_.Errors << std::flush;
}

void Foreman::Work() {
    while (true) {
        const graphics::WorkPlace place(places_);
        const std::optional<std::size_t> job = Begin();
        if (!job)
            return;
        End(*job, RunJob(jobs_[*job]));
    }
}

bool Foreman::RunAll() {
    {
        std::vector<std::jthread> helpers;
        // A single job is over before the next file is begun, which depends on how it went.
        const auto jobs = static_cast<std::size_t>(batch_.Jobs);
        const std::size_t count = std::min(jobs > 1 ? jobs + kWaitingForDisk : jobs, jobs_.size());
        try {
            for (std::size_t i = 1; i < count; ++i)
                helpers.emplace_back([this] { Work(); });
        } catch (const std::exception&) {
            // As many as memory and the system give.
        }
        Work();
    }
    if (streams_.ShowsProgress)
        streams_.Errors << "\r\x1B[K" << std::flush;
    if (problem_)
        std::rethrow_exception(problem_);
    return !anyFailed_;
}

}  // namespace

std::vector<std::string> FillIn(const std::vector<std::string>& words, const std::string& file) {
    const fs::path path(file);
    const std::string folder = path.parent_path().string();
    const std::pair<std::string_view, std::string> values[] = {
        {"{}", PlainPath(file)},
        {"{name}", path.filename().string()},
        {"{stem}", path.stem().string()},
        {"{dir}", folder.empty() ? "." : folder}};
    std::vector<std::string> filled;
    for (const std::string& word : words) {
        std::string& text = filled.emplace_back();
        for (std::string_view rest = word; !rest.empty();) {
            const auto* value = std::ranges::find_if(
                values, [&](const auto& candidate) { return rest.starts_with(candidate.first); });
            const bool isFound = value != std::end(values);
            text += isFound ? std::string_view(value->second) : rest.substr(0, 1);
            rest.remove_prefix(isFound ? value->first.size() : 1);
        }
    }
    return filled;
}

bool RunBatch(const Batch& batch, const BatchStreams& streams) {
    const std::vector<Job> jobs = PlanJobs(batch);
    return Foreman(jobs, batch, streams).RunAll();
}

}  // namespace orbelle::cli
