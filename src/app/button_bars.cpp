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

const ButtonBarSetup kMainBar = {
    Qt::Horizontal,
    ButtonBarStyle::Win10,
    32,
    {"main/new", "main/open", "main/import", "main/save", "1", "main/undo", "main/redo", "1",
     "main/zoom-in", "main/zoom-out", "main/original-size", "1", "main/website"},
    {"1,Y,New,,New,0,-1,0", "2,Y,,,Open,0,-1,0", "3,Y,,,Import,0,0,0", "4,Y,,,Save,0,0,0",
     "5,1,,,,0,-1,0", "6,Y,,,Undo,0,0,0", "7,Y,,,Redo,0,0,0", "8,1,,,,0,-1,0",
     "9,Y,,,Zoom In,0,0,0", "10,Y,,,Zoom Out,0,0,0", "11,Y,Original Size,,Original Size,1,0,1",
     "12,1,,,,0,-1,0", "13,Y,Website,,Website,0,-1,0"},
};

// The texts of 6 to 9 and the pictures are deliberately crossed: the pictures are right.
const ButtonBarSetup kToolColumn = {
    Qt::Vertical,
    ButtonBarStyle::Win10,
    16,
    {"tools/move", "tools/select-rectangle", "1", "tools/pencil", "tools/line", "tools/ellipse",
     "tools/filled-ellipse", "tools/rectangle", "tools/filled-rectangle", "1", "tools/pick",
     "tools/eraser"},
    {"1,Y,,,Move tool,1,-1,0", "2,Y,,,Selection tool,1,-1,0", "3,1,,,,1,-1,0",
     "4,Y,,,Pencil tool,1,-1,0", "5,Y,,,Line tool,1,-1,0", "6,Y,,,Rectangle tool,1,-1,0",
     "7,Y,,,Filled Rectangle tool,1,-1,0", "8,Y,,,Ellipse tool,1,-1,0",
     "9,Y,,,Filled Ellipse tool,1,-1,0", "10,1,,,,1,-1,0", "11,Y,,1,Color Pick tool,1,-1,0",
     "12,Y,,1,Erase tool,1,-1,0"},
};

const ButtonBarSetup kFillKinds = {
    Qt::Horizontal,
    ButtonBarStyle::Normal,
    16,
    {"tools/fill-solid", "tools/fill-horizontal", "tools/fill-vertical", "tools/fill-radial"},
    {"1,Y,,,Solid,0,-1,0", "2,Y,,,Horizontal Gradient,0,-1,0", "3,Y,,,Vertical Gradient,0,-1,0",
     "4,Y,,,Radial Gradient,0,-1,0"},
};

const ButtonBarSetup kLayerBar = {
    Qt::Horizontal,
    ButtonBarStyle::Normal,
    16,
    {"layers/add", "layers/remove", "layers/eye", "1", "layers/order", "layers/merge"},
    {"1,Y,,,Import Icon...,0,-1,0", "2,Y,,,Remove Layer,0,-1,0", "3,Y,,,Hide Layer,0,-1,0",
     "4,1,,,,0,0,0", "5,Y,,,Set Order,0,0,0", "6,Y,Merge Down,,,0,0,0"},
};

const ButtonBarSetup kSelectionKinds = {
    Qt::Horizontal,
    ButtonBarStyle::Normal,
    16,
    {"tools/select-rectangle", "tools/select-ellipse", "tools/select-polygon"},
    {"1,Y,,,Rectangle Selection,0,-1,0", "2,Y,,,Ellipse Selection,0,-1,0",
     "3,Y,,,Polygon Selection,0,-1,0"},
};

const ButtonBarSetup kErasers = {
    Qt::Horizontal,
    ButtonBarStyle::Normal,
    16,
    {"tools/brush-eraser", "tools/pencil-eraser"},
    {"1,Y,,,Brush Eraser,0,-1,0", "2,Y,,,Pencil Eraser,0,-1,0"},
};

ButtonBar* MakeBar(const ButtonBarSetup& setup, const char* name, const char* accessibleName) {
    auto* bar = new ButtonBar(setup);
    bar->setObjectName(name);
    bar->setAccessibleName(accessibleName);
    return bar;
}

template <std::size_t kCount>
void Mirror(ButtonBar& bar, const std::array<editing::Button, kCount>& buttons) {
    for (std::size_t i = 1; i < kCount; ++i) {
        bar.SetButtonEnable(static_cast<int>(i), buttons[i].Enabled);
        bar.SetButtonPressState(static_cast<int>(i), buttons[i].Pressed);
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
      ToolBox(MakeBar(kToolColumn, "ToolBox", "Tools")),
      FillBar(MakeBar(kFillKinds, "FillBar", "Fill kinds")),
      LayerBar(MakeBar(kLayerBar, "LayerBar", "Layer commands")),
      SelectionBar(MakeBar(kSelectionKinds, "SelectionBar", "Selection kinds")),
      EraserBar(MakeBar(kErasers, "EraserBar", "Erasers")) {
    const auto connect = [&form](ButtonBar* bar, std::function<void(int)> click) {
        // A latching button has turned itself; what it shows is the editor's to say.
        QObject::connect(bar, &ButtonBar::MouseClick, &form, [&form, click](int button) {
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
    const int button = ToolBox->ButtonIndex();
    ShowPopup(*FillBar, controls.FillBarVisible, button);
    ShowPopup(*SelectionBar, controls.SelectionBarVisible, editing::tool_buttons::Selection);
    ShowPopup(*EraserBar, controls.EraserBarVisible, editing::tool_buttons::Eraser);
}

}  // namespace orbelle::app
