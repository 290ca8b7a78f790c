// An editor with a full page, for benchmarks of what follows the hand.
#pragma once

#include <cstdlib>

#include "bench_pictures.h"
#include "editing/editor.h"
#include "editing/run.h"

namespace orbelle::bench {

class SilentHost : public editing::EditorObserver, public editing::Clipboard {
public:
    void Changed(const editing::Changes&) override {}
    void Put(const graphics::Bitmap&, const std::string&) override {}
    bool HasPicture() override { return false; }
    graphics::Bitmap Picture() override { return {}; }
    std::string Text() override { return {}; }
};

// Layers of 512 x 512 on a page of that size, in a scene of 1600 x 1000 at zoom 1, the layer
// `selected` selected.
struct EditorPage {
    EditorPage(int layers, int selected) {
        editor.Document = MakeDocument(Content::Icon, 512, layers);
        editor.Page().SelectedLayer = selected;
        editor.DocumentExists = true;
        editor.View.ViewActive = true;
        editor.View.Zoom = 1;
        editor.View.SceneWidth = 1600;
        editor.View.SceneHeight = 1000;
        Step([](editing::Editor& shown) { shown.Changed.Pixels = true; });
    }

    void Step(const editing::Command& step) {
        if (RunDuringDrag(editor, step).Failed())
            std::abort();
    }

    SilentHost host;
    editing::Editor editor{host, host};
};

}  // namespace orbelle::bench
