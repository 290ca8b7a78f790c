#include "cli/workspace.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace orbelle::cli {

void CliHost::Put(const graphics::Bitmap& picture, const std::string& text) {
    picture_ = picture;
    text_ = text;
}

Workspace::Workspace(std::ostream& output, std::istream& input) : Output(output), Input(input) {
    // Every command paints the scene, which nobody sees until a verb asks for it.
    Editor.View.SceneWidth = 1;
    Editor.View.SceneHeight = 1;
}

void Workspace::Run(const editing::Command& command) {
    Keep(editing::Run(Editor, command));
}

void Workspace::RunDuringDrag(const editing::Command& step) {
    Keep(editing::RunDuringDrag(Editor, step));
}

void Workspace::Keep(const editing::Outcome& outcome) {
    std::string message = Host.TakeMessage();
    if (outcome.Failed())
        throw Failure(outcome.Problem());
    if (!message.empty())
        message_ = std::move(message);
}

void Workspace::NoteWritten(const std::filesystem::path& path) {
    const graphics::FileStamp stamp = graphics::StampOf(path);
    const auto known = std::ranges::find_if(Written, [&path](const WrittenFile& written) {
        return written.Path.native() == path.native();
    });
    if (known == Written.end())
        Written.push_back({path, stamp});
    else
        known->Stamp = stamp;
}

WindowView::WindowView(Workspace& workspace)
    : editor_(workspace.Editor), before_(workspace.Editor.View) {
    // A view as it is made has the window's scene and its scroll bars in the middle.
    editor_.View = {};
    editor_.View.Zoom = workspace.Zoom;
    editor_.View.ViewActive = true;
}

void RequirePrinted(std::ostream& output) {
    if (!output.flush())
        throw Failure("standard output: " + std::generic_category().message(errno));
}

void RequireDocument(const Workspace& workspace) {
    if (!workspace.Editor.DocumentExists)
        throw Failure("there is no document");
}

void RequireLayers(const Workspace& workspace, editing::CommandId command) {
    RequireDocument(workspace);
    if (!workspace.Editor.States.IsEnabled(command))
        throw Failure("the document has no layer");
}

void RequireSelectedLayer(const Workspace& workspace) {
    RequireDocument(workspace);
    if (!workspace.Editor.Page().HasSelection())
        throw Failure("no layer is selected");
}

const document::IconLayer& RequireLayer(const Workspace& workspace, int index) {
    RequireDocument(workspace);
    const document::Page& page = workspace.Editor.Page();
    if (index < 0 || index >= page.LayerCount())
        throw Failure("there is no layer " + std::to_string(index) + "; the document has " +
                      std::to_string(page.LayerCount()));
    return page.Layers[static_cast<std::size_t>(index)];
}

}  // namespace orbelle::cli
