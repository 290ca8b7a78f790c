#include "cli/plan.h"

#include "editing/export_commands.h"

namespace orbelle::cli {
namespace {

class Planner {
public:
    explicit Planner(bool inputIsTaken) : inputIsTaken_(inputIsTaken) {}

    void Add(const Call& call);

    cli::Plan Plan;

private:
    void Add(const Call& call, const FileUse& use);
    void AddStandard(const Call& call, bool isRead);
    void AddSets(const FileUse& use);
    void Name(const FileUse& use);

    const bool inputIsTaken_;
    document::Document document_;  // no more of it than its name
    bool exists_ = false;
    bool prints_ = false;
};

[[noreturn]] void Refuse(const Call& call, const char* problem) {
    throw UsageError(call.Place + JoinWords(call.Words) + ": " + problem);
}

void Planner::AddStandard(const Call& call, bool isRead) {
    if (isRead) {
        if (Plan.ReadsStandardInput || inputIsTaken_)
            Refuse(call, "standard input can be read once");
        Plan.ReadsStandardInput = true;
    } else {
        if (Plan.WritesStandardOutput || prints_)
            Refuse(call, "something else goes to standard output");
        Plan.WritesStandardOutput = true;
    }
}

void Planner::AddSets(const FileUse& use) {
    const std::string name = editing::FileNameOf(document_);
    for (const formats::IconSet set : use.Sets) {
        for (const formats::SetFile& file : formats::FilesOfSet(set, name, 0))
            Plan.Writes.push_back(formats::PathInSets(use.File.Path, file.Path));
    }
}

// As the editor names its document.
void Planner::Name(const FileUse& use) {
    const bool isDocument = use.File.Path.extension() == u8".volf";
    if (use.Role == FileRole::Saved && !use.File.IsStandard()) {
        document_.Path = use.File.Path;
    } else if (use.Role == FileRole::Opened ||
               (use.Role == FileRole::Imported && (isDocument || !exists_))) {
        document_.Path.clear();
        document_.Source = use.File.Path;
    }
    exists_ = exists_ || use.Role == FileRole::Opened || use.Role == FileRole::Imported;
}

void Planner::Add(const Call& call, const FileUse& use) {
    if (use.Role == FileRole::SetFolder)
        AddSets(use);
    else if (use.File.IsStandard())
        AddStandard(call, use.IsRead());
    else
        (use.IsRead() ? Plan.Reads : Plan.Writes).push_back(use.File.Path);
    Name(use);
}

void Planner::Add(const Call& call) {
    if (call.Prints && Plan.WritesStandardOutput)
        Refuse(call, "a file goes to standard output");
    prints_ = prints_ || call.Prints;
    if (call.Words[0] == "new") {
        document_ = {};
        exists_ = true;
    }
    for (const FileUse& use : call.Files)
        Add(call, use);
}

}  // namespace

Plan PlanRun(std::span<const Call> calls, bool inputIsTaken) {
    Planner planner(inputIsTaken);
    for (const Call& call : calls)
        planner.Add(call);
    return std::move(planner.Plan);
}

}  // namespace orbelle::cli
