#include "editing/menu_state.h"

namespace orbelle::editing {

void OpenFileMenu(Editor& editor) {
    const bool hasLayers = editor.Document.LayerCount() >= 1;
    editor.Controls.m_Save.Enabled = hasLayers;
    editor.Controls.menu_SaveAs.Enabled = hasLayers;
    editor.Controls.m_Export.Enabled = hasLayers;
}

void OpenStyleMenu(Editor& editor) {
    editor.Controls.m_Crystal.Enabled =
        editor.Document.HasSelection() && editor.Document.Selected().Visible;
}

}  // namespace orbelle::editing
