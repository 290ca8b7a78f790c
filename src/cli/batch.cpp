#include "cli/batch.h"

#include <algorithm>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <thread>
#include <utility>

#include "graphics/path_text.h"
#include "graphics/work_places.h"

namespace orbelle::cli {
namespace {

namespace fs = std::filesystem;

// So many jobs more than compute at a time are begun: a job is done when its files are on the disk.
constexpr std::size_t kWaitingForDisk = 6;

// So many jobs compute at a time. One more than there are cores: systems are slow to give a core
// that waits another one.
std::size_t PlaceCount(const Batch& batch) {
    return batch.Jobs ? static_cast<std::size_t>(*batch.Jobs)
                      : std::size_t{std::max(std::thread::hardware_concurrency(), 1U)} + 1;
}

// What a job printed and told.
struct Result {
    std::string Output;
    std::string Notes;
};

// A path that is told apart from options, numbers, verbs and formats in whatever place it stands.
std::string PlainPath(const std::string& file) {
    const bool isSpecial =
        file.find('/') == std::string::npos &&
        (file.starts_with('-') || FindVerb(file) || !ParseFileName(file, "FILE").Format.empty());
    return isSpecial ? "./" + file : file;
}

std::string DescribeResult(const Job& job, const std::string& output) {
    using Json = nlohmann::ordered_json;
    Json json = {{"file", job.File}, {"ok", job.Error.empty()}};
    if (!job.Error.empty())
        json["error"] = job.Error;
    json["written"] = Json::array();
    for (const WrittenFile& written : job.Written)
        json["written"].push_back(
            {{"path", graphics::Utf8Of(written.Path)}, {"bytes", written.Stamp.Size}});
    json["output"] = Json::array();
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        json["output"].push_back(line);
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

// Gives out jobs, and tells how they ended in their order.
class Foreman {
public:
    Foreman(std::vector<Job*> jobs, const Batch& batch, const BatchStreams& streams)
        : jobs_(std::move(jobs)), batch_(batch), streams_(streams), results_(jobs_.size()) {}

    // Throws what went wrong while telling.
    void RunAll();

private:
    std::optional<std::size_t> Begin();
    void End(std::size_t job, Result result);
    void Work();
    void Tell(const Job& job, const Result& result);
    void ShowProgress();

    const std::vector<Job*> jobs_;
    const Batch& batch_;
    const BatchStreams& streams_;
    graphics::WorkPlaces places_{PlaceCount(batch_)};

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
    anyFailed_ = anyFailed_ || !jobs_[job]->Error.empty();
    results_[job] = std::move(result);
    ++ended_;
    try {
        for (; !problem_ && told_ < begun_ && results_[told_]; ++told_) {
            Tell(*jobs_[told_], *results_[told_]);
            results_[told_] = Result();  // what was told is needed no more
        }
        ShowProgress();
    } catch (const std::exception&) {
        problem_ = std::current_exception();
    }
}

void Foreman::Tell(const Job& job, const Result& result) {
    const std::string output = batch_.IsJson ? DescribeResult(job, result.Output) : result.Output;
    std::string errors = result.Notes;
    if (!job.Error.empty())
        errors += "orbelle-cli: " + job.File + ": " + job.Error + '\n';
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
        std::ostringstream output, notes;
        RunJob(*jobs_[*job], output, notes);
        End(*job, {std::move(output).str(), std::move(notes).str()});
    }
}

void Foreman::RunAll() {
    {
        std::vector<std::jthread> helpers;
        const std::size_t count =
            std::min(PlaceCount(batch_) + (batch_.Jobs ? 0 : kWaitingForDisk), jobs_.size());
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
}

}  // namespace

std::vector<std::string> FillIn(const std::vector<std::string>& words, const std::string& file) {
    const fs::path path = graphics::PathOfUtf8(file);
    const std::string folder = graphics::Utf8Of(path.parent_path());
    const std::pair<std::string_view, std::string> values[] = {
        {"{}", PlainPath(file)},
        {"{name}", graphics::Utf8Of(path.filename())},
        {"{stem}", graphics::Utf8Of(path.stem())},
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

std::vector<Job> PlanBatch(const Batch& batch, const std::vector<VerbLine>& lines, Claims& claims) {
    std::vector<Job> jobs;
    for (const std::string& file : batch.Files) {
        if (file.empty())
            throw UsageError("--each: FILE must be the name of a file");
        std::vector<VerbLine> filled = lines;
        for (VerbLine& line : filled)
            line.Words = FillIn(line.Words, file);
        Job& job = jobs.emplace_back(Job{file, ParseLines(filled), {}});
        job.Plan = PlanRun(job.Calls, batch.InputIsTaken);
        if (batch.IsJson && job.Plan.WritesStandardOutput)
            throw UsageError("--json and a file would both go to standard output");
        claims.Add(file, job.Plan);
    }
    return jobs;
}

void RunBatch(const Batch& batch, std::vector<Job>& jobs, const BatchStreams& streams) {
    std::vector<Job*> due;
    for (Job& job : jobs) {
        if (job.IsDue)
            due.push_back(&job);
    }
    Foreman(std::move(due), batch, streams).RunAll();
}

}  // namespace orbelle::cli
