// What the verbs of one run work on.
#pragma once

#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>

#include "editing/editor.h"
#include "editing/editor_host.h"

namespace orbelle::cli {

// A verb that could not do its work; what() says why.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Stands in for the user: gives the answers that the verb at hand has laid ready.
class CliHost : public editing::EditorHost {
public:
    editing::PageSize Size;                          // for the New dialog
    std::filesystem::path File;                      // for every file dialog
    int GifThreshold = formats::kUsualGifThreshold;  // for the GIF optimiser
    int IconEntry = 0;                               // for the next icon file

    // The first problem that a command has told, and none from then on.
    std::string TakeProblem();

    void ShowMessage(const std::string& text) override;
    void ShowStatus(const std::string& text) override;
    editing::SavePromptAnswer AskSave() override { return editing::SavePromptAnswer::No; }
    std::optional<editing::PageSize> AskPageSize() override { return Size; }
    std::filesystem::path ShowFileDialog(const std::string&, bool) override { return File; }
    std::optional<int> AskGifThreshold(const graphics::Bitmap&) override { return GifThreshold; }
    // No such image: nothing is imported, and that is the problem.
    std::optional<int> ChooseIconEntry(
        const std::vector<formats::IconEntryImage>& offered) override;
    std::optional<graphics::Argb> AskColor(graphics::Argb) override { return std::nullopt; }
    void SetClipboard(const graphics::Bitmap& picture, const std::string& text) override;
    bool ClipboardHasPicture() override { return !clipboardPicture_.IsEmpty(); }
    graphics::Bitmap ClipboardPicture() override { return clipboardPicture_; }
    std::string ClipboardText() override { return clipboardText_; }
    bool Confirm(const std::string&, const std::string&) override { return true; }

private:
    std::string problem_;
    graphics::Bitmap clipboardPicture_;
    std::string clipboardText_;
};

struct Workspace {
    explicit Workspace(std::ostream& output);

    CliHost Host;
    editing::Editor Editor{Host};
    double Zoom = 1;       // of the view, scene pixels per page pixel
    std::ostream& Output;  // for what verbs print
};

// While it lives the editor has the view of a window: a scene of 1024 by 768 with the page in its
// middle, at the run's zoom.
class WindowView {
public:
    explicit WindowView(Workspace& workspace);
    ~WindowView() { editor_.View = before_; }
    WindowView(const WindowView&) = delete;
    WindowView& operator=(const WindowView&) = delete;

private:
    editing::Editor& editor_;
    document::View before_;
};

// These throw Failure when there is no such thing.
void RequireDocument(const Workspace& workspace);
void RequireSelectedLayer(const Workspace& workspace);
const document::IconLayer& RequireLayer(const Workspace& workspace, int index);

}  // namespace orbelle::cli
