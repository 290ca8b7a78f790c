#include "cli/used_files.h"

#include <fstream>
#include <vector>

#include "graphics/byte_source.h"
#include "graphics/file_io.h"

namespace orbelle::cli {
namespace {

void ReadToEnd(std::istream& input, const std::filesystem::path& to) {
    std::ofstream file(to, std::ios::binary);
    std::vector<char> part(1 << 16);
    std::uintmax_t size = 0;
    while (input.read(part.data(), static_cast<std::streamsize>(part.size())), input.gcount() > 0) {
        size += static_cast<std::uintmax_t>(input.gcount());
        if (size > graphics::kMaxFileBytes)
            throw Failure("larger than " + std::to_string(graphics::kMaxFileBytes >> 20) + " MiB");
        file.write(part.data(), input.gcount());
    }
    if (input.bad())
        throw Failure("standard input can't be read");
    if (!file.flush())
        throw Failure("there is not enough memory");
}

}  // namespace

InputFile::InputFile(Workspace& workspace, const FileName& name) : path_(name.Path) {
    if (!name.IsStandard())
        return;
    memory_ = std::make_unique<MemoryFile>();
    path_ = memory_->Path();
    ReadToEnd(workspace.Input, path_);
}

void InputFile::Forget(editing::Editor& editor) const {
    if (!memory_)
        return;
    if (editor.Document.Path == path_) {
        editor.Document.Path.clear();
        editor.Document.Stamp = {};
    }
    if (editor.Document.Source == path_)
        editor.Document.Source.clear();
}

OutputFile::OutputFile(const FileName& name) : path_(name.Path) {
    if (!name.IsStandard())
        return;
    memory_ = std::make_unique<MemoryFile>();
    path_ = memory_->Path();
}

void OutputFile::Finish(Workspace& workspace) const {
    if (!memory_) {
        workspace.NoteWritten(path_);
        return;
    }
    const std::vector<std::uint8_t> bytes = graphics::ReadFile(path_);
    workspace.Output.write(reinterpret_cast<const char*>(bytes.data()),
                           static_cast<std::streamsize>(bytes.size()));
    RequirePrinted(workspace.Output);
}

}  // namespace orbelle::cli
