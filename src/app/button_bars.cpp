#include "app/button_bars.h"

#include <QGraphicsDropShadowEffect>

#include "app/links.h"
#include "app/main_window.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/stack_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

using widgets::ButtonBar;
using widgets::ButtonBarSetup;
using widgets::ButtonBarStyle;

// In the order of the editor's numbers.
const ButtonBarSetup kMainBar = {
    .Style = ButtonBarStyle::Win10,
    .IconSize = 32,
    .Buttons = {{.Caption = "New", .ToolTip = "New", .Artwork = "main/new"},
                {.ToolTip = "Open", .Artwork = "main/open"},
                {.ToolTip = "Import", .Artwork = "main/import"},
                {.ToolTip = "Save", .Artwork = "main/save"},
                {.IsSeparator = true},
                {.ToolTip = "Undo", .Artwork = "main/undo"},
                {.ToolTip = "Redo", .Artwork = "main/redo"},
                {.IsSeparator = true},
                {.ToolTip = "Zoom In", .Artwork = "main/zoom-in"},
                {.ToolTip = "Zoom Out", .Artwork = "main/zoom-out"},
                {.Caption = "Original Size",
                 .ToolTip = "Original Size",
                 .Artwork = "main/original-size",
                 .Latches = true,
                 .HasArrow = true},
                {.IsSeparator = true},
                {.Caption = "Website", .ToolTip = "Website", .Artwork = "main/website"}}};

// The texts of 6 to 9 and the pictures are deliberately crossed: the pictures are right.
const ButtonBarSetup kToolBox = {
    .Direction = Qt::Vertical,
    .Style = ButtonBarStyle::Win10,
    .Buttons = {
        {.ToolTip = "Move tool", .Artwork = "tools/move", .Latches = true},
        {.ToolTip = "Selection tool", .Artwork = "tools/select-rectangle", .Latches = true},
        {.IsSeparator = true},
        {.ToolTip = "Pencil tool", .Artwork = "tools/pencil", .Latches = true},
        {.ToolTip = "Line tool", .Artwork = "tools/line", .Latches = true},
        {.ToolTip = "Rectangle tool", .Artwork = "tools/ellipse", .Latches = true},
        {.ToolTip = "Filled Rectangle tool", .Artwork = "tools/filled-ellipse", .Latches = true},
        {.ToolTip = "Ellipse tool", .Artwork = "tools/rectangle", .Latches = true},
        {.ToolTip = "Filled Ellipse tool", .Artwork = "tools/filled-rectangle", .Latches = true},
        {.IsSeparator = true},
        {.ToolTip = "Color Pick tool", .Artwork = "tools/pick", .Latches = true},
        {.ToolTip = "Erase tool", .Artwork = "tools/eraser", .Latches = true}}};

const ButtonBarSetup kFillBar = {
    .Buttons = {{.ToolTip = "Solid", .Artwork = "tools/fill-solid"},
                {.ToolTip = "Horizontal Gradient", .Artwork = "tools/fill-horizontal"},
                {.ToolTip = "Vertical Gradient", .Artwork = "tools/fill-vertical"},
                {.ToolTip = "Radial Gradient", .Artwork = "tools/fill-radial"}}};

const ButtonBarSetup kLayerBar = {
    .Buttons = {{.ToolTip = "Import Icon...", .Artwork = "layers/add"},
                {.ToolTip = "Remove Layer", .Artwork = "layers/remove"},
                {.ToolTip = "Hide Layer", .Artwork = "layers/eye"},
                {.IsSeparator = true},
                {.ToolTip = "Set Order", .Artwork = "layers/order"},
                {.Caption = "Merge Down", .Artwork = "layers/merge"}}};

const ButtonBarSetup kSelectionBar = {
    .Buttons = {{.ToolTip = "Rectangle Selection", .Artwork = "tools/select-rectangle"},
                {.ToolTip = "Ellipse Selection", .Artwork = "tools/select-ellipse"},
                {.ToolTip = "Polygon Selection", .Artwork = "tools/select-polygon"}}};

const ButtonBarSetup kEraserBar = {
    .Buttons = {{.ToolTip = "Brush Eraser", .Artwork = "tools/brush-eraser"},
                {.ToolTip = "Pencil Eraser", .Artwork = "tools/pencil-eraser"}}};

ButtonBar* MakeBar(const ButtonBarSetup& setup, const char* name, const char* accessibleName) {
    auto* bar = new ButtonBar(setup);
    bar->setObjectName(name);
    bar->setAccessibleName(accessibleName);
    return bar;
}

template <std::size_t kCount>
void Mirror(ButtonBar& bar, const std::array<editing::Button, kCount>& buttons) {
    for (std::size_t i = 1; i < kCount; ++i) {
        bar.SetButtonEnabled(static_cast<int>(i), buttons[i].Enabled);
        bar.SetPressed(static_cast<int>(i), buttons[i].Pressed);
    }
}

void ClickMain(MainWindow& form, int button) {
    using namespace editing;
    switch (button) {
        case main_buttons::New:
            return form.Run(New);
        case main_buttons::Open:
            return form.Run(Open);
        case main_buttons::Import:
            return form.Run(Import);
        case main_buttons::Save:
            return form.Run(Save);
        case main_buttons::Undo:
            return form.Run(Undo);
        case main_buttons::Redo:
            return form.Run(Redo);
        case main_buttons::ZoomIn:
            return form.Run(ZoomIn);
        case main_buttons::ZoomOut:
            return form.Run(ZoomOut);
        case main_buttons::OriginalSize:
            return form.Run(OriginalSize);
        case main_buttons::Website:
            return OpenLink(kWebsite);
        default:
            return;
    }
}

void ClickLayers(MainWindow& form, int button) {
    using namespace editing;
    switch (button) {
        case layer_buttons::Add:
            return form.Run(AddLayerCommand);
        case layer_buttons::Remove:
            return form.Run(RemoveLayerCommand);
        case layer_buttons::Hide:
            return form.Run(HideLayerCommand);
        case layer_buttons::SetOrder:
            return form.ShowOrderMenu();
        case layer_buttons::MergeDown:
            return form.Run(MergeDownCommand);
        default:
            return;
    }
}

}  // namespace

ButtonBars::ButtonBars(MainWindow& form)
    : MainBar(MakeBar(kMainBar, "MainBar", "Main tool bar")),
      ToolBox(MakeBar(kToolBox, "ToolBox", "Tools")),
      FillBar(MakeBar(kFillBar, "FillBar", "Fill kinds")),
      LayerBar(MakeBar(kLayerBar, "LayerBar", "Layer commands")),
      SelectionBar(MakeBar(kSelectionBar, "SelectionBar", "Selection kinds")),
      EraserBar(MakeBar(kEraserBar, "EraserBar", "Erasers")) {
    const auto connect = [&form](ButtonBar* bar, std::function<void(int)> click) {
        // A latching button has turned itself; what it shows is the editor's to say.
        QObject::connect(bar, &ButtonBar::Clicked, &form, [&form, click](int button) {
            click(button);
            form.ControlsChanged();
            form.FocusScene();
        });
    };
    connect(MainBar, [&form](int button) {
        form.CloseTips();
        ClickMain(form, button);
    });
    connect(ToolBox, [&form](int button) {
        form.Run([button](editing::Editor& editor) { ClickToolButton(editor, button); });
    });
    connect(FillBar, [&form](int button) {
        const auto kind = static_cast<editing::FillKind>(button - 1);
        form.Run([kind](editing::Editor& editor) { ChooseFill(editor, kind); });
    });
    connect(LayerBar, [&form](int button) { ClickLayers(form, button); });
    connect(SelectionBar, [&form](int button) {
        form.Run([button](editing::Editor& editor) { ChooseSelection(editor, button); });
    });
    connect(EraserBar, [&form](int button) {
        form.Run([button](editing::Editor& editor) { ChooseEraser(editor, button); });
    });
    for (ButtonBar* popup : {FillBar, SelectionBar, EraserBar}) {
        auto* shadow = new QGraphicsDropShadowEffect(popup);
        shadow->setBlurRadius(14);
        shadow->setOffset(0, 2);
        shadow->setColor(QColor(0, 0, 0, 120));
        popup->setGraphicsEffect(shadow);
        popup->hide();
    }
}

void ButtonBars::ShowPopup(ButtonBar& popup, bool visible, int button) {
    if (visible && popup.isHidden()) {
        const QRect place = ToolBox->ButtonRect(button);
        popup.resize(popup.sizeHint());
        popup.move(ToolBox->mapTo(popup.parentWidget(), QPoint(ToolBox->width() + 1, place.top())));
        popup.raise();
    }
    popup.setVisible(visible);
}

void ButtonBars::ShowStates(const editing::Controls& controls) {
    Mirror(*MainBar, controls.MainBar);
    Mirror(*ToolBox, controls.ToolBox);
    Mirror(*FillBar, controls.FillBar);
    Mirror(*LayerBar, controls.LayerBar);
    Mirror(*SelectionBar, controls.SelectionBar);
    Mirror(*EraserBar, controls.EraserBar);
    ShowPopup(*FillBar, controls.FillBarVisible, ToolBox->LastButton());
    ShowPopup(*SelectionBar, controls.SelectionBarVisible, editing::tool_buttons::Selection);
    ShowPopup(*EraserBar, controls.EraserBarVisible, editing::tool_buttons::Eraser);
}

}  // namespace orbelle::app
