// The states of the window's controls, as data: commands change them, the host mirrors them.
#pragma once

#include <array>
#include <string>

namespace orbelle::editing {

struct Slider {
    int Value = 0;
    bool Enabled = true;
};

struct Button {
    bool Enabled = true;
    bool Pressed = false;
};

struct MenuEntry {
    bool Enabled = true;
    bool Checked = false;
};

// Button numbers of the toolbars; index 0 of the arrays below is unused.
namespace main_buttons {  // MainBar
enum {
    New = 1,
    Open,
    Import,
    Save,
    Undo = 6,
    Redo,
    ZoomIn = 9,
    ZoomOut,
    OriginalSize,
    Website = 13
};
}
namespace tool_buttons {  // ToolBox; the picture and text of 6 to 9 are crossed
enum {
    Move = 1,
    Selection,
    Pencil = 4,
    Line,
    Ellipse,
    FilledEllipse,
    Rectangle,
    FilledRectangle,
    ColorPick = 11,
    Eraser
};
}
namespace selection_buttons {  // SelectionBar
enum { Rectangle = 1, Ellipse, Polygon };
}
namespace eraser_buttons {  // EraserBar
enum { Brush = 1, Pencil };
}
namespace layer_buttons {  // LayerBar
enum { Add = 1, Remove, Hide, SetOrder = 5, MergeDown };
}

struct Controls {
    Slider PageWidth{1, false};   // page width, 1 to 512
    Slider PageHeight{1, false};  // page height, 1 to 512
    Slider Opacity{10, false};    // opacity, 0 to 100
    Slider Hue{0, false};
    Slider Brightness{50, false};
    Slider Saturation{40, false};
    Slider Contrast{50, false};
    Slider Scale{50, false};       // 0 to 100
    Slider BrushOpacity{1, true};  // brush opacity, 1 to 100
    Slider BrushSize{1, true};     // brush size, 1 to 100
    Slider LineWidth{1, true};     // 1 to 255 pixels
    Slider ColorOpacity{0, true};  // of the active colour, 0 to 100

    // Labels beside the sliders.
    std::string HueValue = "0";
    std::string BrightnessValue = "0";
    std::string SaturationValue = "0";
    std::string ContrastValue = "0";
    std::string ScaleValue = "0";
    std::string BrushOpacityText = "1%";
    std::string BrushSizeText = "1";
    std::string FilterCaption = "No filters are used, click Style menu to choose a filter.";

    std::array<Button, 14> MainBar;      // main
    std::array<Button, 13> ToolBox;      // tools
    std::array<Button, 5> FillBar;       // fill kinds, a pop-up: button FillKind + 1 is pressed
    std::array<Button, 7> LayerBar;      // layers
    std::array<Button, 4> SelectionBar;  // selection kinds, a pop-up
    std::array<Button, 3> EraserBar;     // erasers, a pop-up
    bool FillBarVisible = false;
    bool SelectionBarVisible = false;
    bool EraserBarVisible = false;
    bool BrushPanelOpen = false;

    MenuEntry m_Import{false};
    MenuEntry m_Save{false};
    MenuEntry menu_SaveAs{false};
    MenuEntry m_Export{false};
    MenuEntry m_Undo{false};
    MenuEntry m_Redo{false};

    MenuEntry m_Cut{false};
    MenuEntry m_Copy{false};
    MenuEntry m_Paste{false};
    MenuEntry m_Del{false};
    MenuEntry menu_Merge{false};
    MenuEntry menu_FlipH{false};
    MenuEntry menu_FlipV{false};
    MenuEntry m_90CW{false};
    MenuEntry m_90CWW{false};
    MenuEntry m_BackOne{false};
    MenuEntry m_FowardOne{false};
    MenuEntry m_ToBack{false};
    MenuEntry m_ToFront{false};

    MenuEntry m_Disabled{false};
    MenuEntry m_Hot{false};
    MenuEntry m_freshstyle;
    MenuEntry m_iosstyle{false};
    MenuEntry m_origamistyle{false};
    MenuEntry m_Macstyle{false};
    MenuEntry m_Vistastyle{false};
    MenuEntry m_Crystal{false};
    MenuEntry m_Blur{false};
    MenuEntry m_Sharpen{false};
    MenuEntry m_Irradiation{false};
    MenuEntry m_Shade{false};
    MenuEntry m_Reflection{false};
    MenuEntry m_Shadow{false};

    MenuEntry m_Selection{true, true};
    MenuEntry m_Pencil;
    MenuEntry m_Line;
    MenuEntry m_Ellipse;
    MenuEntry m_Rectangle;

    bool PageSliderLock = false;   // the page-size sliders do not react while they are set
    bool PageSizeChanged = false;  // the page was resized since the last fit to the window

    Controls();
};

}  // namespace orbelle::editing
