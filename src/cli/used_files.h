// The files of verbs while they run, standard input and output among them.
#pragma once

#include <filesystem>
#include <memory>

#include "cli/file_name.h"
#include "cli/memory_file.h"
#include "cli/workspace.h"

namespace orbelle::cli {

// Standard input is read to its end first.
class InputFile {
public:
    // Throws Failure when standard input can't be read.
    InputFile(Workspace& workspace, const FileName& name);

    // Valid while this lives.
    const std::filesystem::path& Path() const { return path_; }

    // What came from standard input has no name: takes that of the memory out of the document.
    void Forget(editing::Editor& editor) const;

private:
    std::filesystem::path path_;
    std::unique_ptr<MemoryFile> memory_;
};

// Where a verb writes.
class OutputFile {
public:
    explicit OutputFile(const FileName& name);

    const std::filesystem::path& Path() const { return path_; }
    bool IsStandard() const { return memory_ != nullptr; }

    // To be called when the file is written: prints it if it is standard output, which may throw
    // Failure, and else notes it in the workspace.
    void Finish(Workspace& workspace) const;

private:
    std::filesystem::path path_;
    std::unique_ptr<MemoryFile> memory_;
};

}  // namespace orbelle::cli
