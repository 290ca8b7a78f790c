#include "app/button_bars.h"

#include "app/ask_commands.h"
#include "app/links.h"
#include "app/save_commands.h"
#include "app/step_caption.h"
#include "app/zoom_field.h"
#include "editing/buttons.h"
#include "editing/layer_bar.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using widgets::ButtonBar;
using widgets::ButtonBarSetup;

constexpr widgets::ButtonBarMetrics kMainMetrics = {.FaceSize = {28, 28}, .Margin = 6, .Gap = 6};

// In the order of the editor's numbers.
ButtonBarSetup MainBarSetup() {
    return {.Metrics = kMainMetrics,
            .Buttons = {{.ToolTip = Words::tr("New"), .Artwork = "main/new"},
                        {.ToolTip = Words::tr("Open"), .Artwork = "main/open"},
                        {.ToolTip = Words::tr("Import"), .Artwork = "main/import"},
                        {.ToolTip = Words::tr("Save"), .Artwork = "main/save"},
                        {.IsSeparator = true},
                        {.ToolTip = Words::tr("Undo"), .Artwork = "main/undo"},
                        {.ToolTip = Words::tr("Redo"), .Artwork = "main/redo"},
                        {.IsSeparator = true},
                        {.ToolTip = Words::tr("Zoom In"), .Artwork = "main/zoom-in"},
                        {.ToolTip = Words::tr("Zoom Out"), .Artwork = "main/zoom-out"},
                        {.ToolTip = Words::tr("Original Size"),
                         .Artwork = "main/original-size",
                         .Latches = true},
                        {.IsSpring = true},
                        {.ToolTip = Words::tr("Website"), .Artwork = "main/website"}}};
}

widgets::BarButton WithPopup(const QString& tip, const char* artwork) {
    return {.ToolTip = tip, .Artwork = artwork, .Latches = true, .HasPopup = true};
}

// The texts of 6 to 9 and the pictures are crossed (docs/oddities.md, "Crossed tips"): the pictures
// are right.
ButtonBarSetup ToolBoxSetup() {
    return {.Metrics = {.Direction = Qt::Vertical, .FaceSize = {32, 24}},
            .Buttons = {
                {.ToolTip = Words::tr("Move tool"), .Artwork = "tools/move", .Latches = true},
                WithPopup(Words::tr("Selection tool"), "tools/select-rectangle"),
                {.IsSeparator = true},
                {.ToolTip = Words::tr("Pencil tool"), .Artwork = "tools/pencil", .Latches = true},
                WithPopup(Words::tr("Line tool"), "tools/line"),
                WithPopup(Words::tr("Rectangle tool"), "tools/ellipse"),
                WithPopup(Words::tr("Filled Rectangle tool"), "tools/filled-ellipse"),
                WithPopup(Words::tr("Ellipse tool"), "tools/rectangle"),
                WithPopup(Words::tr("Filled Ellipse tool"), "tools/filled-rectangle"),
                {.IsSeparator = true},
                {.ToolTip = Words::tr("Color Pick tool"), .Artwork = "tools/pick", .Latches = true},
                WithPopup(Words::tr("Erase tool"), "tools/eraser")}};
}

ButtonBarSetup FillBarSetup() {
    return {
        .Buttons = {{.ToolTip = Words::tr("Solid"), .Artwork = "tools/fill-solid"},
                    {.ToolTip = Words::tr("Horizontal Gradient"),
                     .Artwork = "tools/fill-horizontal"},
                    {.ToolTip = Words::tr("Vertical Gradient"), .Artwork = "tools/fill-vertical"},
                    {.ToolTip = Words::tr("Radial Gradient"), .Artwork = "tools/fill-radial"}},
        .HasFrame = true};
}

ButtonBarSetup LayerBarSetup() {
    return {.Buttons = {
                {.ToolTip = Words::tr("Import Icon..."), .Artwork = "layers/add"},
                {.ToolTip = Words::tr("Remove Layer"), .Artwork = "layers/remove"},
                {.ToolTip = Words::tr("Hide Layer"), .Artwork = "layers/eye"},
                {.IsSeparator = true},
                {.ToolTip = Words::tr("Set Order"), .Artwork = "layers/order", .HasPopup = true},
                {.Caption = Words::tr("Merge Down"), .Artwork = "layers/merge"}}};
}

ButtonBarSetup SelectionBarSetup() {
    return {
        .Buttons = {{.ToolTip = Words::tr("Rectangle Selection"),
                     .Artwork = "tools/select-rectangle"},
                    {.ToolTip = Words::tr("Ellipse Selection"), .Artwork = "tools/select-ellipse"},
                    {.ToolTip = Words::tr("Polygon Selection"), .Artwork = "tools/select-polygon"}},
        .HasFrame = true};
}

ButtonBarSetup EraserBarSetup() {
    return {.Buttons = {{.ToolTip = Words::tr("Brush Eraser"), .Artwork = "tools/brush-eraser"},
                        {.ToolTip = Words::tr("Pencil Eraser"), .Artwork = "tools/pencil-eraser"}},
            .HasFrame = true};
}

struct FillLook {
    const char* Name;
    const char* Corner;
};
// By editing::FillKind.
constexpr FillLook kFillLooks[] = {
    {QT_TRANSLATE_NOOP("Words", "Solid"), "tools/corner-solid"},
    {QT_TRANSLATE_NOOP("Words", "Horizontal Gradient"), "tools/corner-horizontal"},
    {QT_TRANSLATE_NOOP("Words", "Vertical Gradient"), "tools/corner-vertical"},
    {QT_TRANSLATE_NOOP("Words", "Radial Gradient"), "tools/corner-radial"}};

ButtonBar* MakeBar(const ButtonBarSetup& setup, const char* name, const QString& accessibleName) {
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
    : MainBar(MakeBar(MainBarSetup(), "MainBar", Words::tr("Main tool bar"))),
      ToolBox(MakeBar(ToolBoxSetup(), "ToolBox", Words::tr("Tools"))),
      FillBar(MakeBar(FillBarSetup(), "FillBar", Words::tr("Fill kinds"))),
      LayerBar(MakeBar(LayerBarSetup(), "LayerBar", Words::tr("Layer commands"))),
      SelectionBar(MakeBar(SelectionBarSetup(), "SelectionBar", Words::tr("Selection kinds"))),
      EraserBar(MakeBar(EraserBarSetup(), "EraserBar", Words::tr("Erasers"))),
      zoom_(new ZoomField) {
    AddZoomField(context);
    const auto connect = [this, context](ButtonBar* bar, const std::function<void(int)>& click) {
        // A latching button has turned itself; what it shows is the editor's to say.
        QObject::connect(bar, &ButtonBar::Clicked, bar, [this, context, bar, click](int button) {
            const bool byKeys = bar->hasFocus();
            click(button);
            context.Window.ShowControls();
            context.Window.FocusScene();
            if (byKeys && bar == ToolBox)
                FocusPopup();
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
    ConnectPopupKeys(context);
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
    for (ButtonBar* popup : {FillBar, SelectionBar, EraserBar})
        popup->hide();
}

void ButtonBars::AddZoomField(const WindowContext& context) {
    using editing::Editor;
    MainBar->PutBeside(editing::main_buttons::OriginalSize, *zoom_);
    QObject::connect(zoom_, &ZoomField::ZoomWanted, zoom_, [context](double zoom) {
        context.Commands.Run([zoom](Editor& editor) { ZoomAboutMiddle(editor, zoom); });
    });
    QObject::connect(zoom_, &ZoomField::FitWanted, zoom_,
                     [context] { context.Commands.Run(editing::FitWhole); });
    QObject::connect(zoom_, &ZoomField::StepWanted, zoom_, [context](int direction) {
        context.Commands.Run(direction > 0 ? editing::ZoomIn : editing::ZoomOut);
    });
    QObject::connect(zoom_, &ZoomField::Finished, zoom_,
                     [context] { context.Window.FocusScene(); });
}

void ButtonBars::ShowZoom(const editing::Editor& editor) {
    zoom_->ShowZoom(editor.DocumentExists ? editor.View.Zoom : 0);
}

void ButtonBars::ShowFillKind(editing::FillKind kind) {
    const FillLook& look = kFillLooks[static_cast<std::size_t>(kind)];
    for (const int button : {editing::tool_buttons::Line, editing::tool_buttons::Ellipse,
                             editing::tool_buttons::FilledEllipse, editing::tool_buttons::Rectangle,
                             editing::tool_buttons::FilledRectangle})
        ToolBox->SetChoice(button, look.Corner, Words::tr(look.Name));
}

// What the keys have opened has them, until something is chosen or Escape leaves it.
void ButtonBars::FocusPopup() const {
    for (ButtonBar* popup : {FillBar, SelectionBar, EraserBar})
        if (popup->isVisible())
            popup->setFocus(Qt::TabFocusReason);
}

void ButtonBars::ConnectPopupKeys(const WindowContext& context) {
    for (ButtonBar* popup : {FillBar, SelectionBar, EraserBar})
        QObject::connect(popup, &ButtonBar::LeaveWanted, popup, [this, context] {
            context.Commands.Run(editing::CloseToolPopup);
            ToolBox->setFocus(Qt::TabFocusReason);
        });
}

void ButtonBars::ShowPopup(ButtonBar& popup, bool visible, int button) {
    if (visible && popup.isHidden()) {
        const QRect place = ToolBox->ButtonRect(button);
        popup.resize(popup.sizeHint());
        const int left = ToolBox->isRightToLeft() ? -1 - popup.width() : ToolBox->width() + 1;
        popup.move(ToolBox->mapTo(popup.parentWidget(), QPoint(left, place.top())));
        popup.raise();
    }
    popup.setVisible(visible);
}

void ButtonBars::ShowStates(const editing::Editor& editor) {
    const editing::ControlStates& states = editor.States;
    Mirror(*MainBar, states.MainBar);
    MainBar->SetToolTip(editing::main_buttons::Undo,
                        StepCaption(Words::tr("Undo"), Words::tr("Undo %1"), states.UndoName));
    MainBar->SetToolTip(editing::main_buttons::Redo,
                        StepCaption(Words::tr("Redo"), Words::tr("Redo %1"), states.RedoName));
    zoom_->setEnabled(states.IsEnabled(editing::CommandId::OriginalSize));
    Mirror(*ToolBox, states.ToolBox);
    ShowFillKind(editor.Tools.FillKind);
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
