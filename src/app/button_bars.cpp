#include "app/button_bars.h"

#include <QGraphicsDropShadowEffect>

#include "app/ask_commands.h"
#include "app/links.h"
#include "app/save_commands.h"
#include "app/step_caption.h"
#include "editing/buttons.h"
#include "editing/layer_bar.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"

namespace orbelle::app {
namespace {

using widgets::ButtonBar;
using widgets::ButtonBarSetup;

// In the order of the editor's numbers.
const ButtonBarSetup kMainBar = {
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

// The texts of 6 to 9 and the pictures are crossed (docs/oddities.md, "Crossed tips"): the pictures
// are right.
const ButtonBarSetup kToolBox = {
    .Direction = Qt::Vertical,
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
void Mirror(ButtonBar& bar, const std::array<editing::ButtonState, kCount>& buttons) {
    for (std::size_t i = 1; i < kCount; ++i) {
        bar.SetButtonEnabled(static_cast<int>(i), buttons[i].Enabled);
        bar.SetPressed(static_cast<int>(i), buttons[i].Pressed);
    }
}

void ClickMain(const WindowContext& context, int button) {
    using namespace editing;
    CommandRunner& commands = context.Commands;
    switch (button) {
        case main_buttons::New:
            return AskNew(context);
        case main_buttons::Open:
            return AskOpen(context);
        case main_buttons::Import:
            return AskImport(context);
        case main_buttons::Save:
            AskSave(context);
            return;
        case main_buttons::Undo:
            commands.Run(Undo);
            return;
        case main_buttons::Redo:
            commands.Run(Redo);
            return;
        case main_buttons::ZoomIn:
            commands.Run(ZoomIn);
            return;
        case main_buttons::ZoomOut:
            commands.Run(ZoomOut);
            return;
        case main_buttons::OriginalSize:
            commands.Run(OriginalSize);
            return;
        case main_buttons::Website:
            return OpenLink(context, kWebsite);
        default:
            return;
    }
}

void ClickLayers(const WindowContext& context, int button) {
    using namespace editing;
    CommandRunner& commands = context.Commands;
    switch (button) {
        case layer_buttons::Add:
            commands.Run(PressAddLayer);
            return;
        case layer_buttons::Remove:
            commands.Run(PressRemoveLayer);
            return;
        case layer_buttons::Hide:
            commands.Run(PressHideLayer);
            return;
        case layer_buttons::SetOrder:
            return context.Window.ShowOrderMenu();
        case layer_buttons::MergeDown:
            commands.Run(PressMergeDown);
            return;
        default:
            return;
    }
}

}  // namespace

ButtonBars::ButtonBars(const WindowContext& context)
    : MainBar(MakeBar(kMainBar, "MainBar", "Main tool bar")),
      ToolBox(MakeBar(kToolBox, "ToolBox", "Tools")),
      FillBar(MakeBar(kFillBar, "FillBar", "Fill kinds")),
      LayerBar(MakeBar(kLayerBar, "LayerBar", "Layer commands")),
      SelectionBar(MakeBar(kSelectionBar, "SelectionBar", "Selection kinds")),
      EraserBar(MakeBar(kEraserBar, "EraserBar", "Erasers")) {
    const auto connect = [context](ButtonBar* bar, const std::function<void(int)>& click) {
        // A latching button has turned itself; what it shows is the editor's to say.
        QObject::connect(bar, &ButtonBar::Clicked, bar, [context, click](int button) {
            click(button);
            context.Window.ShowControls();
            context.Window.FocusScene();
        });
    };
    const auto run = [context](void (*command)(editing::Editor&, int), int button) {
        context.Commands.Run([=](editing::Editor& editor) { command(editor, button); });
    };
    connect(MainBar, [context](int button) {
        context.Window.CloseTips();
        ClickMain(context, button);
    });
    connect(ToolBox, [run](int button) { run(editing::ClickToolButton, button); });
    connect(FillBar, [run](int button) {
        run([](editing::Editor& editor,
               int pressed) { ChooseFill(editor, static_cast<editing::FillKind>(pressed - 1)); },
            button);
    });
    connect(LayerBar, [context](int button) { ClickLayers(context, button); });
    connect(SelectionBar, [run](int button) {
        run([](editing::Editor& editor,
               int pressed) { ChooseSelection(editor, editing::SelectionToolOf(pressed)); },
            button);
    });
    connect(EraserBar, [run](int button) {
        run([](editing::Editor& editor,
               int pressed) { ChooseEraser(editor, editing::EraserToolOf(pressed)); },
            button);
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

void ButtonBars::ShowStates(const editing::Editor& editor) {
    const editing::ControlStates& states = editor.States;
    Mirror(*MainBar, states.MainBar);
    MainBar->SetToolTip(editing::main_buttons::Undo, StepCaption("Undo", states.UndoName));
    MainBar->SetToolTip(editing::main_buttons::Redo, StepCaption("Redo", states.RedoName));
    Mirror(*ToolBox, states.ToolBox);
    Mirror(*FillBar, states.FillBar);
    Mirror(*LayerBar, states.LayerBar);
    Mirror(*SelectionBar, states.SelectionBar);
    Mirror(*EraserBar, states.EraserBar);
    const auto show = [&](ButtonBar& popup, editing::Popup which) {
        ShowPopup(popup, editor.Tools.OpenPopup == which, editing::ButtonOf(editor.Tools.InUse));
    };
    show(*FillBar, editing::Popup::FillBar);
    show(*SelectionBar, editing::Popup::SelectionBar);
    show(*EraserBar, editing::Popup::EraserBar);
}

}  // namespace orbelle::app
