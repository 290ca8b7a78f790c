// What the editor asks of the program around it: the window, the command line, a test.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "formats/icon_reader.h"
#include "graphics/bitmap.h"
#include "graphics/color.h"

namespace orbelle::editing {

enum class SavePromptAnswer { Cancel = 0, No = 1, Yes = 2 };

struct PageSize {
    int Width = 0;  // page pixels
    int Height = 0;
};

class EditorHost {
public:
    virtual ~EditorHost() = default;

    // Notices. A host that does not show the thing has nothing to do.
    virtual void SceneChanged() {}       // Editor::Scene was painted anew
    virtual void LayerPanelChanged() {}  // the stack or a thumbnail changed
    virtual void ControlsChanged() {}    // Editor::Controls changed
    virtual void OverlaysChanged() {}    // Editor::Overlays changed
    virtual void TitleChanged() {}       // Editor::Title changed
    // A tip fits now, by its number; `showLayerTips`: and one about adding layers.
    virtual void ShowTips(int /*tip*/, bool /*showLayerTips*/ = false) {}
    virtual void HideTips() {}  // the first balloon closes now
    virtual void SetBusyPointer(bool /*busy*/) {}
    virtual void SlideBrushPanel() {}  // in or out, as Controls::BrushPanelOpen says
    // The layer order menu, wanted at this place of the scene, scene pixels.
    virtual void ShowLayerMenu(float /*x*/, float /*y*/) {}
    // Editor::Zoom is to be stepped by TickZoomAnimation until that says that it is done.
    virtual void StartZoomAnimation() {}

    // A plain message box with one button.
    virtual void ShowMessage(const std::string& text) = 0;
    // A failure told in the status line, without a box.
    virtual void ShowStatus(const std::string& text) = 0;

    // "Save Icon Document?": before a changed document is given up.
    virtual SavePromptAnswer AskSave() = 0;
    // The New dialog. No value: cancelled. The host remembers the last size.
    virtual std::optional<PageSize> AskPageSize() = 0;
    // A file dialog with a filter of "text|patterns|text|patterns..."; empty: cancelled.
    virtual std::filesystem::path ShowFileDialog(const std::string& filter, bool isOpen) = 0;
    // At which alpha (0 to 200) a pixel of the surface counts as opaque in a GIF. No value:
    // cancelled.
    virtual std::optional<int> AskGifThreshold(const graphics::Bitmap& surface) = 0;
    // Which image of an icon file to take, as its place among those offered; -1: OK without one,
    // as when none is offered. No value: cancelled.
    virtual std::optional<int> ChooseIconEntry(
        const std::vector<formats::IconEntryImage>& offered) = 0;
    // The colour dialog; no value: cancelled. The alpha of both means nothing.
    virtual std::optional<graphics::Argb> AskColor(graphics::Argb initial) = 0;

    // The clipboard holds one picture and, beside it, a text.
    virtual void SetClipboard(const graphics::Bitmap& picture, const std::string& text) = 0;
    virtual bool ClipboardHasPicture() = 0;
    virtual graphics::Bitmap ClipboardPicture() = 0;  // empty: none that can be read
    virtual std::string ClipboardText() = 0;

    // A question with OK and Cancel, Cancel the default; true: OK.
    virtual bool Confirm(const std::string& text, const std::string& title) = 0;
};

}  // namespace orbelle::editing
