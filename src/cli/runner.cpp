#include "cli/runner.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <utility>

#include "cli/depfile.h"
#include "cli/wildcards.h"
#include "graphics/file_io.h"
#include "graphics/path_text.h"

namespace orbelle::cli {
namespace {

// Throws UsageError for a script that can be read once.
void RequireWatchable(const std::string& script) {
    const std::filesystem::path path = graphics::PathOfUtf8(script);
    std::error_code error;
    const bool isOther =
        std::filesystem::exists(path, error) && !std::filesystem::is_regular_file(path, error);
    if (script == "-" || isOther)
        throw UsageError("--watch: the script " + script + " can't be read again");
}

// In the place of "-" those that standard input names, in that of a pattern those that it is for.
std::vector<std::string> ReadFileNames(const std::vector<std::string>& words) {
    std::vector<std::string> names;
    for (const std::string& word : words) {
        if (word != "-") {
            std::ranges::move(FilesMeantBy(word), std::back_inserter(names));
            continue;
        }
        for (std::string line; std::getline(std::cin, line);) {
            if (!line.empty())
                names.push_back(line);
        }
        if (std::cin.bad())
            throw UsageError("-: can't be read");
    }
    return names;
}

}  // namespace

Runner::Runner(Options options, const BatchStreams& streams)
    : options_(std::move(options)), streams_(streams) {
    if (options_.Watches && options_.Script)
        RequireWatchable(*options_.Script);
    batch_.InputIsTaken = options_.Script == "-";
    if (!options_.Each)
        return;
    const Options::EachFile& each = *options_.Each;
    batch_ = {.Files = ReadFileNames(each.Files),
              .Jobs = each.Jobs,
              .KeepsGoing = each.KeepsGoing,
              .IsJson = each.IsJson,
              .InputIsTaken =
                  batch_.InputIsTaken || std::ranges::find(each.Files, "-") != each.Files.end()};
}

std::string Runner::ScriptFile() const {
    return options_.Script && options_.Script != "-" ? *options_.Script : "";
}

std::vector<VerbLine> Runner::ReadLines() const {
    if (!options_.Script)
        return {VerbLine{options_.Verbs}};
    if (options_.Script == "-")
        return ReadScript(std::cin, "-");
    std::ifstream file(graphics::PathOfUtf8(*options_.Script), std::ios::binary);
    if (!file)
        throw UsageError(*options_.Script + ": " + std::strerror(errno));
    return ReadScript(file, *options_.Script);
}

void Runner::PlanOnce(const std::vector<VerbLine>& lines, Claims& claims) {
    Job job{{}, ParseLines(lines), {}};
    job.Plan = PlanRun(job.Calls, batch_.InputIsTaken);
    if (!options_.Depfile.empty())
        claims.Add("a verb", job.Plan);
    Jobs.push_back(std::move(job));
}

void Runner::PlanDepfile(Claims& claims) const {
    if (options_.Depfile.empty())
        return;
    CheckOutputNames(Jobs, ScriptFile());
    claims.AddOutput("--depfile", graphics::PathOfUtf8(options_.Depfile));
    if (!ScriptFile().empty())
        claims.AddInput("--script", graphics::PathOfUtf8(ScriptFile()));
}

void Runner::Plan() {
    Jobs.clear();
    const std::vector<VerbLine> lines = ReadLines();
    Claims claims;
    try {
        if (options_.Each)
            Jobs = PlanBatch(batch_, lines, claims);
        else
            PlanOnce(lines, claims);
        if (options_.Watches &&
            std::ranges::any_of(Jobs, [](const Job& job) { return job.Plan.ReadsStandardInput; }))
            throw UsageError("--watch: standard input can't be read again");
        PlanDepfile(claims);
        claims.CheckInputs();
    } catch (const UsageError&) {
        Jobs.clear();
        throw;
    }
}

bool Runner::WriteDepfile() const {
    try {
        const std::string lines = DescribeOutputs(Jobs, ScriptFile());
        graphics::WriteFile(graphics::PathOfUtf8(options_.Depfile),
                            {reinterpret_cast<const std::uint8_t*>(lines.data()), lines.size()});
        return true;
    } catch (const std::runtime_error& error) {
        streams_.Errors << "orbelle-cli: --depfile " << error.what() << std::endl;
        return false;
    }
}

bool Runner::Run() {
    if (options_.Each) {
        RunBatch(batch_, Jobs, streams_);
    } else {
        Job& job = Jobs.front();
        RunJob(job, streams_.Output, streams_.Errors);
        if (!job.Error.empty())
            streams_.Errors << "orbelle-cli: " << job.Error << std::endl;
    }
    const bool allWentWell = std::ranges::none_of(
        Jobs, [](const Job& job) { return job.IsDue || !job.Error.empty() || job.Differs; });
    return allWentWell && (options_.Depfile.empty() || WriteDepfile());
}

}  // namespace orbelle::cli
