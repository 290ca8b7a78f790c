// The whole state of the editor. The commands in this folder are plain routines that work on it;
// Run (run.h) carries them out.
#pragma once

#include <optional>

#include "document/compositor.h"
#include "document/scene_painter.h"
#include "document/undo_history.h"
#include "editing/changes.h"
#include "editing/control_states.h"
#include "editing/editor_host.h"
#include "editing/editor_state.h"
#include "graphics/bitmap.h"

namespace orbelle::editing {

struct Editor : EditorState {
    // Both outlive the editor.
    Editor(EditorObserver& observer, editing::Clipboard& clipboard);

    EditorObserver& Observer;
    editing::Clipboard& Clipboard;

    document::UndoHistory History;
    // What the last Copy took; it counts while the clipboard carries the product's mark. The two
    // belong together, and the clipboard is not taken back.
    std::optional<document::IconLayer> ClipboardLayer;
    Changes Changed;  // by the command that runs

    // The host's wishes.
    document::SceneLooks Looks;
    bool AnimatesZoom = true;
    double OpeningZoom = 1;   // 1 or more
    bool OpensWhole = false;  // a page that fits comes at the largest whole zoom that shows it

    // Kept by Run.
    ControlStates States;
    graphics::Bitmap Canvas;  // the composed page, without its background
    graphics::Bitmap Scene;   // what the window shows, of the view's size
    document::Compositor Compositor;
};

}  // namespace orbelle::editing
