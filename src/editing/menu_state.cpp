#include "editing/menu_state.h"

namespace orbelle::editing {

void OpenFileMenu(Editor& editor) {
    const bool hasLayers = editor.Document.LayerCount() >= 1;
    editor.Controls.m_Save.Enabled = hasLayers;
    editor.Controls.menu_SaveAs.Enabled = hasLayers;
    editor.Controls.m_Export.Enabled = hasLayers;
}

void OpenEditMenu(Editor& editor) {
    Controls& controls = editor.Controls;
    const document::Document& document = editor.Document;
    const int index = document.SelectedLayer;
    const bool selected = document.HasSelection();
    const bool usable =
        selected && document.Selected().Visible && !document.Selected().ClipNextLayer;
    for (MenuEntry* entry :
         {&controls.m_Cut, &controls.m_Copy, &controls.m_Del, &controls.menu_FlipH,
          &controls.menu_FlipV, &controls.m_90CW, &controls.m_90CWW})
        entry->Enabled = usable;
    for (MenuEntry* entry : {&controls.m_ToBack, &controls.m_BackOne})
        entry->Enabled = usable && index >= 1;
    for (MenuEntry* entry : {&controls.m_ToFront, &controls.m_FowardOne})
        entry->Enabled = usable && index < document.LayerCount() - 1;
    controls.menu_Merge.Enabled = index > 0 && document.Selected().Visible &&
                                  document.Layers[static_cast<std::size_t>(index) - 1].Visible;
    controls.m_Paste.Enabled = editor.DocumentExists && editor.Host.ClipboardHasPicture();
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
