#include "app/main_menu.h"

#include <QMainWindow>
#include <QMenuBar>
#include <optional>

#include "app/ask_commands.h"
#include "app/export_formats.h"
#include "app/export_sets.h"
#include "app/links.h"
#include "app/looks.h"
#include "app/save_commands.h"
#include "app/step_caption.h"
#include "editing/clipboard_commands.h"
#include "editing/selection_commands.h"
#include "editing/size_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editing/view_commands.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using editing::CommandId;

constexpr char kTipsName[] = "Tips";
constexpr char kPixelGridName[] = "PixelGrid";
constexpr char kCheckName[] = "CheckIcon";

using Action = std::function<void(const WindowContext&)>;

struct Entry {
    const char* Name = nullptr;
    QString Caption;  // '&' marks the mnemonic; empty: a separator
    QList<QKeySequence> Shortcuts = {};
    Action Run = {};
    std::optional<CommandId> Command = {};  // whose state it shows; none: always enabled
    std::vector<Entry> Entries = {};        // of a submenu
    bool Checks = false;                    // it carries a check mark
    std::function<bool(const editing::ToolSettings&)> IsOn = {};  // when, if the tools tell
};

Action Edit(editing::Command command) {
    return [command = std::move(command)](const WindowContext& context) {
        context.Commands.Run(command);
    };
}

Action Style(editing::Command command) {
    return [command = std::move(command)](const WindowContext& context) {
        context.Commands.RunBusy(command);
    };
}

std::vector<Entry> ExportEntries() {
    static constexpr const char* kNames[] = {"ExportIco", "ExportIcns", "ExportCur", "ExportPng",
                                             "ExportGif", "ExportJpeg", "ExportBmp"};
    static_assert(std::size(kNames) == std::size(kExportEntries));
    std::vector<Entry> entries;
    for (const ExportEntry& format : kExportEntries) {
        entries.push_back(
            {kNames[entries.size()],
             Words::tr(format.Caption),
             {},
             [&format](const WindowContext& context) { AskExport(context, format); }});
    }
    entries.push_back({});
    entries.push_back({"ExportSets", Words::tr("Icon &Set..."), {}, AskExportSets});
    return entries;
}

std::vector<Entry> FileEntries() {
    return {
        {"New", Words::tr("&New"), {Qt::CTRL | Qt::Key_N}, AskNew},
        {"Open", Words::tr("&Open"), {Qt::CTRL | Qt::Key_O}, AskOpen},
        {"OpenRecent", Words::tr("Open &Recent")},
        {},
        {"Save",
         Words::tr("&Save"),
         {Qt::CTRL | Qt::Key_S},
         [](const WindowContext& context) { AskSave(context); },
         CommandId::Save},
        {"SaveAs",
         Words::tr("Save &As..."),
         {Qt::CTRL | Qt::SHIFT | Qt::Key_S},
         [](const WindowContext& context) { AskSaveAs(context); },
         CommandId::SaveAs},
        {},
        {"Import", Words::tr("&Import..."), {Qt::CTRL | Qt::Key_I}, AskImport},
        {"Export", Words::tr("&Export..."), {}, {}, CommandId::Export, ExportEntries()},
        {},
        {"Exit",
         Words::tr("E&xit"),
         {Qt::CTRL | Qt::Key_Q},
         [](const WindowContext& context) { context.Window.CloseWindow(); }},
    };
}

std::vector<Entry> ImageEntries() {
    return {
        {"ImageOpacity", Words::tr("&Opacity...")},
        {"Grey", Words::tr("&Grey")},
        {},
        {"BackgroundColor",
         Words::tr("&Background Color"),
         {},
         {},
         {},
         {{"SetBackgroundColor", Words::tr("&Set Background Color")},
          {"TransparencyBackgroundColor", Words::tr("&Transparency Background Color")}}},
    };
}

std::vector<Entry> EditEntries() {
    using editing::FlipRotate;
    using editing::LayerOrder;
    using Shortcuts = QList<QKeySequence>;
    using State = CommandId;
    const auto entry = [](const char* name, const QString& caption, const Shortcuts& shortcuts,
                          void (*command)(editing::Editor&), State state) {
        return Entry{name, caption, shortcuts, Edit(command), state};
    };
    const auto turn = [](const char* name, const QString& caption, FlipRotate mode, State state) {
        return Entry{name,
                     caption,
                     {},
                     Edit([mode](editing::Editor& editor) { FlipRotateLayer(editor, mode); }),
                     state};
    };
    const auto move = [](const char* name, const QString& caption, const Shortcuts& shortcuts,
                         LayerOrder order, State state) {
        return Entry{name, caption, shortcuts,
                     Edit([order](editing::Editor& editor) { SetLayerOrder(editor, order); }),
                     state};
    };
    return {
        entry("Undo", Words::tr("&Undo"), {Qt::CTRL | Qt::Key_Z}, editing::Undo, CommandId::Undo),
        entry("Redo", Words::tr("&Redo"), {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
              editing::Redo, CommandId::Redo),
        {},
        entry("Cut", Words::tr("Cu&t"), {Qt::CTRL | Qt::Key_X}, editing::CutToClipboard,
              CommandId::Cut),
        entry("Copy", Words::tr("&Copy"), {Qt::CTRL | Qt::Key_C}, editing::CopyToClipboard,
              CommandId::Copy),
        {"Paste",
         Words::tr("&Paste"),
         {Qt::CTRL | Qt::Key_V},
         [](const WindowContext& context) { context.Window.Paste(); },
         CommandId::Paste},
        entry("Delete", Words::tr("&Delete"), {}, editing::DeleteSelected, CommandId::Delete),
        {},
        entry("SelectAll", Words::tr("Select &All"), {Qt::CTRL | Qt::Key_A}, editing::SelectAll,
              CommandId::SelectAll),
        entry("Deselect", Words::tr("D&eselect"), {Qt::CTRL | Qt::Key_D}, editing::EndSelection,
              CommandId::Deselect),
        entry("InvertSelection", Words::tr("&Invert Selection"), {Qt::CTRL | Qt::SHIFT | Qt::Key_I},
              editing::InvertSelection, CommandId::InvertSelection),
        {},
        entry("MergeDown", Words::tr("&Merge Down"), {}, editing::MergeDown, CommandId::MergeDown),
        {},
        turn("FlipHorizontal", Words::tr("Flip &Horizontal"), FlipRotate::FlipHorizontal,
             CommandId::FlipHorizontal),
        turn("FlipVertical", Words::tr("Flip &Veritcal"), FlipRotate::FlipVertical,
             CommandId::FlipVertical),
        turn("Rotate90Cw", Words::tr("Rotate &90 CW"), FlipRotate::Rotate90Cw,
             CommandId::Rotate90Cw),
        turn("Rotate90Cww", Words::tr("Rotate 90 CW&W"), FlipRotate::Rotate90Cww,
             CommandId::Rotate90Cww),
        {},
        move("BackOne", Words::tr("&Back One"), {Qt::CTRL | Qt::Key_BracketLeft},
             LayerOrder::BackOne, CommandId::BackOne),
        move("ForwardOne", Words::tr("&Foward One"), {Qt::CTRL | Qt::Key_BracketRight},
             LayerOrder::ForwardOne, CommandId::ForwardOne),
        move("ToBack", Words::tr("To Bac&k"), {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketLeft},
             LayerOrder::ToBack, CommandId::ToBack),
        move("ToFront", Words::tr("To Fro&nt"), {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketRight},
             LayerOrder::ToFront, CommandId::ToFront),
    };
}

std::vector<Entry> StyleEntries() {
    const auto entry = [](const char* name, const QString& caption,
                          void (*command)(editing::Editor&), CommandId state) {
        return Entry{name, caption, {}, Style(command), state};
    };
    const auto fold = [](const char* name, const QString& caption, filters::Fold direction) {
        return Entry{name, caption, {}, Style([direction](editing::Editor& editor) {
                         Origami(editor, direction);
                     })};
    };
    return {
        entry("DisabledState", Words::tr("&Disabled State"), editing::DisabledState,
              CommandId::DisabledState),
        entry("HotState", Words::tr("&Hot State"), editing::HotState, CommandId::HotState),
        {},
        entry("Fresh", Words::tr("Varnel &Fresh Style"), editing::Fresh, CommandId::Fresh),
        entry("Ios", Words::tr("&IOS Style"), editing::Ios, CommandId::Ios),
        {"Origami",
         Words::tr("&Origami style"),
         {},
         {},
         CommandId::Origami,
         {fold("OrigamiVertical", Words::tr("&Vertical"), filters::Fold::Vertical),
          fold("OrigamiHorizontal", Words::tr("&Horizontal"), filters::Fold::Horizontal)}},
        entry("Mac", Words::tr("&Mac Style"), editing::Mac, CommandId::Mac),
        entry("Vista", Words::tr("&Vista Style"), editing::Vista, CommandId::Vista),
        entry("Crystal", Words::tr("&Crystal Style"), editing::Crystal, CommandId::Crystal),
        {},
        entry("Blur", Words::tr("&Blur"), editing::Blur, CommandId::Blur),
        entry("Sharpen", Words::tr("Shar&pen"), editing::Sharpen, CommandId::Sharpen),
        {},
        entry("Irradiation", Words::tr("I&rradiation"), editing::Irradiation,
              CommandId::Irradiation),
        entry("Shade", Words::tr("&Shade"), editing::Shade, CommandId::Shade),
        entry("Reflection", Words::tr("Ref&lection"), editing::Reflection, CommandId::Reflection),
        entry("DropShadow", Words::tr("Drop Shado&w"), editing::DropShadow, CommandId::DropShadow),
    };
}

// The Move tool needs no document.
std::optional<CommandId> CommandOf(editing::Tool tool) {
    if (tool == editing::Tool::Move)
        return std::nullopt;
    return CommandId::ChooseTool;
}

std::vector<Entry> ToolEntries() {
    const auto entry = [](const char* name, const QString& caption, editing::Tool tool) {
        return Entry{
            .Name = name,
            .Caption = caption,
            .Run = Edit([tool](editing::Editor& editor) { ChooseToolEntry(editor, tool); }),
            .Command = CommandOf(tool),
            .Checks = true,
            .IsOn = [tool](const editing::ToolSettings& tools) { return tools.InUse == tool; }};
    };
    const auto mirror = [](const char* name, const QString& caption, const QKeySequence& shortcut,
                           void (*command)(editing::Editor&), bool editing::MirrorAxes::*axis) {
        return Entry{
            .Name = name,
            .Caption = caption,
            .Shortcuts = {shortcut},
            .Run = Edit(command),
            .Command = CommandId::Mirror,
            .Checks = true,
            .IsOn = [axis](const editing::ToolSettings& tools) { return tools.Mirror.*axis; }};
    };
    return {
        entry("SelectionTool", Words::tr("&Selecetion"), editing::Tool::Move),
        entry("PencilTool", Words::tr("&Pencil"), editing::Tool::Pencil),
        entry("LineTool", Words::tr("&Line"), editing::Tool::Line),
        entry("EllipseTool", Words::tr("&Ellipse"), editing::Tool::Ellipse),
        entry("RectangleTool", Words::tr("&Rectangle"), editing::Tool::Rectangle),
        {},
        mirror("MirrorLeftRight", Words::tr("&Mirror Left/Right"), Qt::CTRL | Qt::Key_M,
               editing::ToggleMirrorLeftRight, &editing::MirrorAxes::LeftRight),
        mirror("MirrorTopBottom", Words::tr("Mirror &Top/Bottom"), Qt::CTRL | Qt::SHIFT | Qt::Key_M,
               editing::ToggleMirrorTopBottom, &editing::MirrorAxes::TopBottom),
        {},
        {.Name = kCheckName,
         .Caption = Words::tr("&Check Icon"),
         .Run = [](const WindowContext& context) { context.Window.ToggleCheck(); },
         .Checks = true},
    };
}

std::vector<Entry> ViewEntries() {
    const auto looks = [](const char* name, const QString& caption, Looks which) {
        return Entry{
            .Name = name,
            .Caption = caption,
            .Run = [which](const WindowContext&) { ChooseLooks(which); },
            .Checks = true,
            .IsOn = [which](const editing::ToolSettings&) { return CurrentLooks() == which; }};
    };
    return {
        {.Name = kPixelGridName,
         .Caption = Words::tr("Pixel &Grid"),
         .Shortcuts = {Qt::CTRL | Qt::Key_Apostrophe},
         .Run = [](const WindowContext& context) { context.Window.TogglePixelGrid(); },
         .Checks = true},
        {.Name = "FitWhole",
         .Caption = Words::tr("Fit in &Whole Steps"),
         .Shortcuts = {Qt::CTRL | Qt::Key_9},
         .Run = Edit(editing::FitWhole),
         .Command = CommandId::FitWhole},
        {},
        {.Name = "NextSize",
         .Caption = Words::tr("&Next Size"),
         .Shortcuts = {Qt::CTRL | Qt::Key_PageDown},
         .Run = Edit(editing::GoToNextPage),
         .Command = CommandId::NextSize},
        {.Name = "PreviousSize",
         .Caption = Words::tr("&Previous Size"),
         .Shortcuts = {Qt::CTRL | Qt::Key_PageUp},
         .Run = Edit(editing::GoToPreviousPage),
         .Command = CommandId::PreviousSize},
        {.Name = "Master",
         .Caption = Words::tr("&Master"),
         .Shortcuts = {Qt::CTRL | Qt::Key_Home},
         .Run = Edit([](editing::Editor& editor) { GoToPage(editor, document::Family::kMaster); }),
         .Command = CommandId::Master},
        {},
        looks("LooksLight", Words::tr("&Light"), Looks::Light),
        looks("LooksDark", Words::tr("&Dark"), Looks::Dark),
        looks("LooksDesktop", Words::tr("As the D&esktop"), Looks::AsDesktop),
    };
}

std::vector<Entry> HelpEntries() {
    const auto link = [](const char* name, const QString& caption, const QString& address) {
        return Entry{
            .Name = name, .Caption = caption, .Run = [address](const WindowContext& context) {
                OpenLink(context, address);
            }};
    };
    return {
        {.Name = kTipsName,
         .Caption = Words::tr("&Tips"),
         .Run = [](const WindowContext& context) { context.Window.ToggleTips(); },
         .Checks = true},
        {.Name = "Samples", .Caption = Words::tr("&Samples"), .Run = OpenSamples},
        link("DownloadSampleIcons", Words::tr("&Free Download Sample Icons..."), kSampleIcons),
        link("DownloadIcons", Words::tr("&Download Over 20,000 Professional Icons..."), kMoreIcons),
        {},
        link("WebsiteEntry", Words::tr("Varnel &Website"), kWebsite),
        {.Name = "About",
         .Caption = Words::tr("&About"),
         .Run = [](const WindowContext& context) { context.Window.ShowAbout(); }},
    };
}

bool HasCommand(const Entry& entry) {
    return entry.Run || std::ranges::any_of(entry.Entries, HasCommand);
}

}  // namespace

MainMenu::MainMenu(QMainWindow& window, const WindowContext& context) {
    const std::function<void(QMenu&, const std::vector<Entry>&)> fill =
        [&](QMenu& menu, const std::vector<Entry>& entries) {
            for (const Entry& entry : entries) {
                if (entry.Caption.isEmpty()) {
                    menu.addSeparator();
                    continue;
                }
                QAction* action;
                if (entry.Entries.empty()) {
                    action = menu.addAction(entry.Caption);
                } else {
                    QMenu* submenu = menu.addMenu(entry.Caption);
                    fill(*submenu, entry.Entries);
                    action = submenu->menuAction();
                }
                action->setObjectName(entry.Name);
                action->setShortcuts(entry.Shortcuts);
                action->setEnabled(HasCommand(entry));
                action->setCheckable(entry.Checks);
                if (entry.Run)
                    QObject::connect(action, &QAction::triggered, &window,
                                     [run = entry.Run, context] { run(context); });
                if (entry.Command)
                    states_.push_back({action, *entry.Command});
                if (entry.IsOn)
                    marks_.push_back({action, entry.IsOn});
            }
        };
    const Entry menus[] = {
        {.Name = "FileMenu", .Caption = Words::tr("&File"), .Entries = FileEntries()},
        {.Name = "ImageMenu", .Caption = Words::tr("&Image"), .Entries = ImageEntries()},
        {.Name = "EditMenu", .Caption = Words::tr("&Edit"), .Entries = EditEntries()},
        {.Name = "StyleMenu", .Caption = Words::tr("&Style"), .Entries = StyleEntries()},
        {.Name = "ToolMenu", .Caption = Words::tr("&Tool"), .Entries = ToolEntries()},
        {.Name = "ViewMenu", .Caption = Words::tr("&View"), .Entries = ViewEntries()},
        {.Name = "HelpMenu", .Caption = Words::tr("&Help"), .Entries = HelpEntries()},
    };
    for (const Entry& entry : menus) {
        QMenu* menu = window.menuBar()->addMenu(entry.Caption);
        menu->setObjectName(entry.Name);
        fill(*menu, entry.Entries);
        // A check mark that was clicked has turned itself.
        QObject::connect(menu, &QMenu::aboutToShow, &window,
                         [context] { context.Window.ShowControls(); });
    }
    tips_ = window.findChild<QAction*>(kTipsName);
    pixelGrid_ = window.findChild<QAction*>(kPixelGridName);
    pixelGrid_->setChecked(true);
    check_ = window.findChild<QAction*>(kCheckName);
    undo_ = window.findChild<QAction*>("Undo");
    redo_ = window.findChild<QAction*>("Redo");
    orderMenu_ = new QMenu("Right_Layer", &window);
    orderMenu_->setObjectName("OrderMenu");
    for (const char* name : {"BackOne", "ForwardOne", "ToBack", "ToFront"})
        orderMenu_->addAction(window.findChild<QAction*>(name));
}

void MainMenu::ShowTipsState(bool enabled) {
    tips_->setChecked(enabled);
}

void MainMenu::ShowPixelGridState(bool shown) {
    pixelGrid_->setChecked(shown);
}

void MainMenu::ShowCheckState(bool shown) {
    check_->setChecked(shown);
}

void MainMenu::ShowStates(const editing::Editor& editor) {
    for (const State& state : states_)
        state.Action->setEnabled(editor.States.IsEnabled(state.Command));
    for (const Mark& mark : marks_)
        mark.Action->setChecked(mark.IsOn(editor.Tools));
    undo_->setText(StepCaption(Words::tr("&Undo"), Words::tr("&Undo %1"), editor.States.UndoName));
    redo_->setText(StepCaption(Words::tr("&Redo"), Words::tr("&Redo %1"), editor.States.RedoName));
}

}  // namespace orbelle::app
