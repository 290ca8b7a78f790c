// What the verbs of one run work on.
#pragma once

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "editing/editor.h"
#include "editing/run.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_stamp.h"

namespace orbelle::cli {

// A verb that could not do its work; what() says why.
class Failure : public Error {
public:
    using Error::Error;
};

// The clipboard is the run's own; nobody watches the editor.
class CliHost : public editing::EditorObserver, public editing::Clipboard {
public:
    // What the command just run has to tell although it went well; empty: nothing.
    std::string TakeMessage() { return std::exchange(message_, {}); }

    void Changed(const editing::Changes& changes) override { message_ = changes.Message; }
    void Put(const graphics::Bitmap& picture, const std::string& text) override;
    bool HasPicture() override { return !picture_.IsEmpty(); }
    graphics::Bitmap Picture() override { return picture_; }
    std::string Text() override { return text_; }

private:
    std::string message_;
    graphics::Bitmap picture_;
    std::string text_;
};

struct WrittenFile {
    std::filesystem::path Path;
    graphics::FileStamp Stamp;  // as it was left
};

struct Workspace {
    explicit Workspace(std::ostream& output, std::istream& input = std::cin);

    // Runs a command on the editor. Throws Failure with what is wrong; what a command that went
    // well has to tell stays for TakeMessage.
    void Run(const editing::Command& command);
    // The same for a step of a drag.
    void RunDuringDrag(const editing::Command& step);

    // Empty: nothing to tell.
    std::string TakeMessage() { return std::exchange(message_, {}); }

    // To be called when a verb has written the file.
    void NoteWritten(const std::filesystem::path& path);

    CliHost Host;
    editing::Editor Editor{Host, Host};
    double Zoom = 1;  // of the view, scene pixels per page pixel
    // Which image the next open or import of an icon file takes; nothing: all.
    std::optional<int> IconImage = 0;
    int SvgSide = graphics::kDefaultSvgSide;  // of the drawings opened or imported
    std::ostream& Output;                     // for what verbs print
    std::istream& Input;                      // for the file "-"
    std::vector<WrittenFile> Written;         // by verbs that went well, each once, in their order
    bool Differs = false;                     // a verb found that files do; not a failure

private:
    void Keep(const editing::Outcome& outcome);

    std::string message_;
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

// Throws Failure when what was printed so far could not be written.
void RequirePrinted(std::ostream& output);

// These throw Failure when there is no such thing.
void RequireDocument(const Workspace& workspace);
// Also while the File menu's entry would be disabled, for want of a layer.
void RequireLayers(const Workspace& workspace, editing::CommandId command);
void RequireSelectedLayer(const Workspace& workspace);
const document::IconLayer& RequireLayer(const Workspace& workspace, int index);

}  // namespace orbelle::cli
