// The six toolbars of the main window, and what their buttons run.
#pragma once

#include "app/window_actions.h"
#include "widgets/button_bar.h"

namespace orbelle::app {

class ZoomField;

// The bars belong to the window; the three pop-ups lie on its central widget.
class ButtonBars {
public:
    explicit ButtonBars(const WindowContext& context);

    // Enabled and pressed states, and which pop-ups are open.
    void ShowStates(const editing::Editor& editor);

    void ShowZoom(const editing::Editor& editor);

    widgets::ButtonBar* const MainBar;
    widgets::ButtonBar* const ToolBox;
    widgets::ButtonBar* const FillBar;
    widgets::ButtonBar* const LayerBar;
    widgets::ButtonBar* const SelectionBar;
    widgets::ButtonBar* const EraserBar;

private:
    void AddZoomField(const WindowContext& context);
    void ConnectPopupKeys(const WindowContext& context);
    void FocusPopup() const;
    void ShowFillKind(editing::FillKind kind);
    void ShowPopup(widgets::ButtonBar& popup, bool visible, int button);

    ZoomField* zoom_;
};

}  // namespace orbelle::app
