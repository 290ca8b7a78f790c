#include "editing/menu_state.h"

namespace orbelle::editing {

void OpenFileMenu(Editor& editor) {
    const bool hasLayers = editor.Document.LayerCount() >= 1;
    editor.Controls.m_Save.Enabled = hasLayers;
    editor.Controls.menu_SaveAs.Enabled = hasLayers;
    editor.Controls.m_Export.Enabled = hasLayers;
}

void OpenStyleMenu(Editor& editor) {
    Controls& controls = editor.Controls;
    const bool hasLayers = editor.Document.LayerCount() > 0;
    controls.m_Disabled.Enabled = hasLayers;
    controls.m_Hot.Enabled = hasLayers;
    // Fresh is deliberately left out: it stays enabled.
    const bool visible = editor.Document.HasSelection() && editor.Document.Selected().Visible;
    for (MenuEntry* entry :
         {&controls.m_Blur, &controls.m_Sharpen, &controls.m_Irradiation, &controls.m_iosstyle,
          &controls.m_origamistyle, &controls.m_Crystal, &controls.m_Macstyle,
          &controls.m_Vistastyle, &controls.m_Reflection, &controls.m_Shade, &controls.m_Shadow})
        entry->Enabled = visible;
}

}  // namespace orbelle::editing
