// An editor with a full page, for benchmarks of what follows the hand.
#pragma once

#include "bench_pictures.h"
#include "editing/editor.h"
#include "editing/view_commands.h"

namespace orbelle::bench {

class SilentHost : public editing::EditorHost {
public:
    void ShowMessage(const std::string&) override {}
    void ShowStatus(const std::string&) override {}
    editing::SavePromptAnswer AskSave() override { return editing::SavePromptAnswer::No; }
    std::optional<editing::PageSize> AskPageSize() override { return std::nullopt; }
    std::filesystem::path ShowFileDialog(const std::string&, bool) override { return {}; }
    std::optional<int> AskGifThreshold(const graphics::Bitmap&) override { return std::nullopt; }
    std::optional<int> ChooseIconEntry(const std::vector<formats::IconEntryImage>&) override {
        return 0;
    }
    std::optional<graphics::Argb> AskColor(graphics::Argb) override { return std::nullopt; }
    void SetClipboard(const graphics::Bitmap&, const std::string&) override {}
    bool ClipboardHasPicture() override { return false; }
    graphics::Bitmap ClipboardPicture() override { return {}; }
    std::string ClipboardText() override { return {}; }
    bool Confirm(const std::string&, const std::string&) override { return true; }
};

// Layers of 512 x 512 on a page of that size, in a scene of 1600 x 1000 at zoom 1, the layer
// `selected` selected.
struct EditorPage {
    EditorPage(int layers, int selected) {
        editor.Document = MakeDocument(Content::Icon, 512, layers);
        editor.Document.SelectedLayer = selected;
        editor.DocumentExists = true;
        editor.View.ViewActive = true;
        editor.View.Zoom = 1;
        editor.View.SceneWidth = 1600;
        editor.View.SceneHeight = 1000;
        editing::Compose(editor);
    }

    SilentHost host;
    editing::Editor editor{host};
};

}  // namespace orbelle::bench
