#include "cli/workspace.h"

#include <utility>

namespace orbelle::cli {

std::string CliHost::TakeProblem() {
    return std::exchange(problem_, {});
}

void CliHost::ShowMessage(const std::string& text) {
    if (problem_.empty())
        problem_ = text;
}

void CliHost::ShowStatus(const std::string& text) {
    ShowMessage(text);
}

std::optional<int> CliHost::ChooseIconEntry(const std::vector<formats::IconEntryImage>& offered) {
    const int entry = std::exchange(IconEntry, 0);
    // The editor knows better why there is nothing to choose from.
    if (offered.empty())
        return -1;
    if (entry < static_cast<int>(offered.size()))
        return entry;
    ShowMessage("there is no image " + std::to_string(entry) + "; the icon offers " +
                std::to_string(offered.size()));
    return std::nullopt;
}

void CliHost::SetClipboard(const graphics::Bitmap& picture, const std::string& text) {
    clipboardPicture_ = picture;
    clipboardText_ = text;
}

Workspace::Workspace(std::ostream& output) : Output(output) {
    // Every command paints the scene, which nobody sees until a verb asks for it.
    Editor.View.SceneWidth = 1;
    Editor.View.SceneHeight = 1;
}

WindowView::WindowView(Workspace& workspace)
    : editor_(workspace.Editor), before_(workspace.Editor.View) {
    // A view as it is made has the window's scene and its scroll bars in the middle.
    editor_.View = {};
    editor_.View.Zoom = workspace.Zoom;
    editor_.View.ViewActive = true;
}

void RequireDocument(const Workspace& workspace) {
    if (!workspace.Editor.DocumentExists)
        throw Failure("there is no document");
}

void RequireSelectedLayer(const Workspace& workspace) {
    RequireDocument(workspace);
    if (!workspace.Editor.Document.HasSelection())
        throw Failure("no layer is selected");
}

const document::IconLayer& RequireLayer(const Workspace& workspace, int index) {
    RequireDocument(workspace);
    const document::Document& document = workspace.Editor.Document;
    if (index < 0 || index >= document.LayerCount())
        throw Failure("there is no layer " + std::to_string(index) + "; the document has " +
                      std::to_string(document.LayerCount()));
    return document.Layers[static_cast<std::size_t>(index)];
}

}  // namespace orbelle::cli
