#include "editing/adjust_sliders.h"

#include <algorithm>

#include "editing/command_frame.h"
#include "editing/tips.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"

namespace orbelle::editing {

void PressOpacity(Editor& editor) {
    RunCommand(editor, [&] { BeginUndoStep(editor); });
}

void ChangeOpacity(Editor& editor, int value) {
    editor.Controls.CtlScroll21.Value = std::clamp(value, 0, 100);
    if (editor.Document.HasSelection())
        editor.Document.Selected().Opacity =
            static_cast<float>(editor.Controls.CtlScroll21.Value / 100.0);
    Compose(editor);
}

void ReleaseOpacity(Editor& editor) {
    Compose(editor);
    editor.Host.LayerPanelChanged();
    editor.Host.ShowTips(tips::Adjusted);
    editor.Host.ControlsChanged();
}

}  // namespace orbelle::editing
