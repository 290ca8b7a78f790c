#include "editing/tip_texts.h"

#include "editing/tips.h"

namespace orbelle::editing {
namespace {

constexpr char kDoubleClick[] = " Double-click to set background color/foreground color.";

struct FixedTip {
    int Number;
    const char* Text;
    TipPlace Place;
};

constexpr FixedTip kFixedTips[] = {
    {tips::Welcome,
     "Click on the \"New\" button or \"Open\" Button to create a new icon or open an existing "
     "file.",
     TipPlace::NewAndOpenButtons},
    {tips::NewOrOpened, "Click on the \"Import\" button, you can import one or more images.",
     TipPlace::ImportButton},
    {tips::Adjusted,
     "Not satisfied with the current results? You can click on the Undo/Redo button to restore.",
     TipPlace::UndoButtons},
    {tips::Reflection, "Here you can change the opacity of the Reflection.",
     TipPlace::OpacitySlider},
    {tips::Crystal, "Here you can change the opacity of the Crystal.", TipPlace::OpacitySlider},
    {tips::Shade, "Here you can change the opacity of the Shade.", TipPlace::OpacitySlider},
    {tips::Vista, "Here you can change the opacity of the Vista style.", TipPlace::OpacitySlider},
    {tips::Ios,
     "Click here, you could try to draw a rectangle, or click File/Import to import a picture. it "
     "will look more perfect.",
     TipPlace::RectangleButton},
    {tips::NothingToMove, "To move the icon, you must to choose an icon object.", TipPlace::Page},
};

TipChoice MoveTips(const Editor& editor, bool showLayerTips, int pick) {
    TipChoice choice;
    choice.FirstBalloon = Tip{
        pick == 1 ? "Click right-click to rotate, flip or adjust the order the selected icon."
                  : "Using the mouse Drag & Drop or direction key to move the selected icon. Click "
                    "\"Style\" menu to ornament your icon.",
        TipPlace::SelectedLayer};
    choice.FirstVisible = editor.Page().LayerCount() > 0;
    if (showLayerTips) {
        choice.SecondBalloon =
            Tip{"You aslo can click the \"Add\" button to import a new icon image.",
                TipPlace::AddLayerButton};
        choice.SecondVisible = true;
    }
    return choice;
}

// Empty: the text stays as it was.
std::string DrawingText(Tool tool) {
    const std::string drag = "Using the mouse Drag & Drop to draw a ";
    switch (tool) {
        case Tool::Pencil:
            return "Single click or Drag & Drop to draw a single pixel on the selected icon layer.";
        case Tool::Line:
            return drag + "line on the selected icon layer.";
        case Tool::Rectangle:
        case Tool::FilledRectangle:
            return drag + "rectangle on the selected icon layer. Press Shift key to draw a square.";
        case Tool::Ellipse:
        case Tool::FilledEllipse:
            return drag + "ellipse on the selected icon layer. Press Shift key to draw a circle.";
        case Tool::PencilEraser:
            return "Single click or Drag & Drop to change a pixel to transparent on the selected "
                   "icon layer.";
        case Tool::SelectRectangle:
            return drag +
                   "selection region. Then choose Edit/Cut or Edit/Copy to cut or copy the "
                   "selection region.";
        case Tool::BrushEraser:
            return "Single click or Drag & Drop to change pixels to transparent on the selected "
                   "icon layer.";
        default:
            return {};
    }
}

std::string OptionsText(Tool tool) {
    switch (tool) {
        case Tool::Pencil:
            return std::string("Set the pencil color and opacity.") + kDoubleClick;
        case Tool::Line:
            return std::string("Set the line color, width and opacity.") + kDoubleClick;
        case Tool::Rectangle:
        case Tool::FilledRectangle:
            return std::string("Set the rectangle color, width and opacity.") + kDoubleClick;
        case Tool::Ellipse:
        case Tool::FilledEllipse:
            return std::string("Set the ellipse color, width and opacity.") + kDoubleClick;
        case Tool::BrushEraser:
            return "Brush eraser have more options: An opacity of 100% erases pixels completely. A "
                   "lower opacity erases pixels partially.";
        default:
            return {};
    }
}

TipChoice ToolTips(const Editor& editor) {
    const Tool tool = editor.Tools.InUse;
    TipChoice choice;
    choice.FirstVisible = editor.Page().LayerCount() > 0;
    choice.SecondVisible = tool != Tool::PencilEraser && tool != Tool::SelectRectangle;
    if (const std::string text = DrawingText(tool); !text.empty())
        choice.FirstBalloon = Tip{text, TipPlace::SelectedLayer};
    if (const std::string text = OptionsText(tool); !text.empty())
        choice.SecondBalloon =
            Tip{text, tool == Tool::BrushEraser ? TipPlace::BrushOptions : TipPlace::ColorWells};
    return choice;
}

}  // namespace

TipChoice ChooseTips(const Editor& editor, int tip, bool showLayerTips, int pick) {
    if (tip == tips::MoveTool)
        return MoveTips(editor, showLayerTips, pick);
    if (tip == tips::OtherTool)
        return ToolTips(editor);
    for (const FixedTip& fixed : kFixedTips) {
        if (fixed.Number == tip)
            return {Tip{fixed.Text, fixed.Place}, true, std::nullopt, std::nullopt};
    }
    return {};
}

}  // namespace orbelle::editing
