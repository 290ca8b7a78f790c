#include "app/main_menu.h"

#include <QMenuBar>
#include <functional>

#include "app/export_formats.h"
#include "app/links.h"
#include "app/main_window.h"
#include "editing/clipboard_commands.h"
#include "editing/document_commands.h"
#include "editing/export_commands.h"
#include "editing/stack_commands.h"
#include "editing/style_commands.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"

namespace orbelle::app {
namespace {

using editing::Controls;

constexpr char kTipsName[] = "m_Tips";

using Command = std::function<void(MainWindow&)>;

struct Entry {
    const char* Name = nullptr;
    QString Caption;  // '&' marks the mnemonic; empty: a separator
    QList<QKeySequence> Shortcuts = {};
    Command Run = {};
    editing::MenuEntry Controls::*State = nullptr;  // none: always enabled
    std::vector<Entry> Entries = {};                // of a submenu
    bool Checks = false;                            // it carries a check mark
};

Command Edit(MainWindow::EditorCommand command) {
    return [command = std::move(command)](MainWindow& form) { form.Run(command); };
}

std::vector<Entry> ExportEntries() {
    static constexpr const char* kNames[] = {"m_ExportFormat0", "m_ExportFormat1",
                                             "m_ExportFormat2", "m_ExportFormat3",
                                             "m_ExportFormat4"};
    static_assert(std::size(kNames) == std::size(kExportEntries));
    std::vector<Entry> entries;
    for (const ExportEntry& format : kExportEntries) {
        entries.push_back({kNames[entries.size()],
                           QString("&") + format.Caption,
                           {},
                           Edit([&format](editing::Editor& editor) {
                               Export(editor, format.Format, format.Filter);
                           })});
    }
    return entries;
}

std::vector<Entry> FileEntries() {
    return {
        {"m_New", "&New", {Qt::CTRL | Qt::Key_N}, Edit(editing::New)},
        {"m_Open", "&Open", {Qt::CTRL | Qt::Key_O}, Edit(editing::Open)},
        {},
        {"m_Save", "&Save", {Qt::CTRL | Qt::Key_S}, Edit(editing::Save), &Controls::m_Save},
        {"menu_SaveAs",
         "Save &As...",
         {Qt::CTRL | Qt::SHIFT | Qt::Key_S},
         Edit(editing::SaveAs),
         &Controls::menu_SaveAs},
        {},
        {"m_Import",
         "&Import...",
         {Qt::CTRL | Qt::Key_I},
         Edit(editing::Import),
         &Controls::m_Import},
        {"m_Export", "&Export...", {}, {}, &Controls::m_Export, ExportEntries()},
        {},
        {"m_Exit", "E&xit", {Qt::CTRL | Qt::Key_Q}, [](MainWindow& form) { form.close(); }},
    };
}

std::vector<Entry> ImageEntries() {
    return {
        {"m_Opcaity", "&Opacity..."},
        {"menu_Grey", "&Grey"},
        {},
        {"menu_BgColor",
         "&Background Color",
         {},
         {},
         nullptr,
         {{"m_SetBG", "&Set Background Color"}, {"m_TransBG", "&Transparency Background Color"}}},
    };
}

std::vector<Entry> EditEntries() {
    using editing::FlipRotate;
    using editing::LayerOrder;
    using Shortcuts = QList<QKeySequence>;
    using State = editing::MenuEntry Controls::*;
    const auto entry = [](const char* name, const char* caption, const Shortcuts& shortcuts,
                          void (*command)(editing::Editor&), State state) {
        return Entry{name, caption, shortcuts, Edit(command), state};
    };
    const auto turn = [](const char* name, const char* caption, FlipRotate mode, State state) {
        return Entry{name,
                     caption,
                     {},
                     Edit([mode](editing::Editor& editor) { FlipRotateLayer(editor, mode); }),
                     state};
    };
    const auto move = [](const char* name, const char* caption, const Shortcuts& shortcuts,
                         LayerOrder order, State state) {
        return Entry{name, caption, shortcuts,
                     Edit([order](editing::Editor& editor) { SetLayerOrder(editor, order); }),
                     state};
    };
    return {
        entry("m_Undo", "&Undo", {Qt::CTRL | Qt::Key_Z}, editing::Undo, &Controls::m_Undo),
        entry("m_Redo", "&Redo", {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
              editing::Redo, &Controls::m_Redo),
        {},
        entry("m_Cut", "Cu&t", {Qt::CTRL | Qt::Key_X}, editing::CutToClipboard, &Controls::m_Cut),
        entry("m_Copy", "&Copy", {Qt::CTRL | Qt::Key_C}, editing::CopyToClipboard,
              &Controls::m_Copy),
        {"m_Paste",
         "&Paste",
         {Qt::CTRL | Qt::Key_V},
         [](MainWindow& form) { form.Paste(); },
         &Controls::m_Paste},
        entry("m_Del", "&Delete", {}, editing::DeleteCommand, &Controls::m_Del),
        {},
        entry("menu_Merge", "&Merge Down", {}, editing::CombineIcon, &Controls::menu_Merge),
        {},
        turn("menu_FlipH", "Flip &Horizontal", FlipRotate::FlipH, &Controls::menu_FlipH),
        turn("menu_FlipV", "Flip &Veritcal", FlipRotate::FlipV, &Controls::menu_FlipV),
        turn("m_90CW", "Rotate &90 CW", FlipRotate::Rotate90CW, &Controls::m_90CW),
        turn("m_90CWW", "Rotate 90 CW&W", FlipRotate::Rotate90CWW, &Controls::m_90CWW),
        {},
        move("m_BackOne", "&Back One", {Qt::CTRL | Qt::Key_BracketLeft}, LayerOrder::BackOne,
             &Controls::m_BackOne),
        move("m_FowardOne", "&Foward One", {Qt::CTRL | Qt::Key_BracketRight}, LayerOrder::FowardOne,
             &Controls::m_FowardOne),
        move("m_ToBack", "To Bac&k", {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketLeft},
             LayerOrder::ToBack, &Controls::m_ToBack),
        move("m_ToFront", "To Fro&nt", {Qt::CTRL | Qt::SHIFT | Qt::Key_BracketRight},
             LayerOrder::ToFront, &Controls::m_ToFront),
    };
}

std::vector<Entry> StyleEntries() {
    const auto entry = [](const char* name, const char* caption, void (*command)(editing::Editor&),
                          editing::MenuEntry Controls::*state) {
        return Entry{name, caption, {}, Edit(command), state};
    };
    const auto fold = [](const char* name, const char* caption, filters::Fold direction) {
        return Entry{name, caption, {}, Edit([direction](editing::Editor& editor) {
                         Origami(editor, direction);
                     })};
    };
    return {
        entry("m_Disabled", "&Disabled State", editing::DisabledState, &Controls::m_Disabled),
        entry("m_Hot", "&Hot State", editing::HotState, &Controls::m_Hot),
        {},
        entry("m_freshstyle", "Varnel &Fresh Style", editing::Fresh, &Controls::m_freshstyle),
        entry("m_iosstyle", "&IOS Style", editing::iOS, &Controls::m_iosstyle),
        {"m_origamistyle",
         "&Origami style",
         {},
         {},
         &Controls::m_origamistyle,
         {fold("m_origamistylelevel0", "&Vertical", filters::Fold::Vertical),
          fold("m_origamistylelevel1", "&Horizontal", filters::Fold::Horizontal)}},
        entry("m_Macstyle", "&Mac Style", editing::Mac, &Controls::m_Macstyle),
        entry("m_Vistastyle", "&Vista Style", editing::Vista, &Controls::m_Vistastyle),
        entry("m_Crystal", "&Crystal Style", editing::Crystal, &Controls::m_Crystal),
        {},
        entry("m_Blur", "&Blur", editing::Blur, &Controls::m_Blur),
        entry("m_Sharpen", "Shar&pen", editing::Sharpen, &Controls::m_Sharpen),
        {},
        entry("m_Irradiation", "I&rradiation", editing::Irradiation, &Controls::m_Irradiation),
        entry("m_Shade", "&Shade", editing::Shade, &Controls::m_Shade),
        entry("m_Reflection", "Ref&lection", editing::Reflection, &Controls::m_Reflection),
        entry("m_Shadow", "Drop Shado&w", editing::DropShadow, &Controls::m_Shadow),
    };
}

std::vector<Entry> ToolEntries() {
    const auto entry = [](const char* name, const char* caption, editing::Tool tool,
                          editing::MenuEntry Controls::*state) {
        return Entry{
            .Name = name,
            .Caption = caption,
            .Run = Edit([tool](editing::Editor& editor) { ChooseToolEntry(editor, tool); }),
            .State = state,
            .Checks = true};
    };
    return {
        entry("m_Selection", "&Selecetion", editing::Tool::Move, &Controls::m_Selection),
        entry("m_Pencil", "&Pencil", editing::Tool::Pencil, &Controls::m_Pencil),
        entry("m_Line", "&Line", editing::Tool::Line, &Controls::m_Line),
        entry("m_Ellipse", "&Ellipse", editing::Tool::Ellipse, &Controls::m_Ellipse),
        entry("m_Rectangle", "&Rectangle", editing::Tool::Rectangle, &Controls::m_Rectangle),
    };
}

std::vector<Entry> HelpEntries() {
    const auto link = [](const char* name, const char* caption, const QString& address) {
        return Entry{
            .Name = name, .Caption = caption, .Run = [address](MainWindow&) { OpenLink(address); }};
    };
    return {
        {.Name = kTipsName,
         .Caption = "&Tips",
         .Run = [](MainWindow& form) { form.SetTipsEnabled(!form.TipsEnabled()); },
         .Checks = true},
        {.Name = "m_Samples",
         .Caption = "&Samples",
         .Run =
             [](MainWindow& form) {
                 if (!OpenSamples())
                     form.ShowStatus("The folder of samples is not there.");
             }},
        link("m_DownloadSample", "&Free Download Sample Icons...", kSampleIcons),
        link("m_GetIcons", "&Download Over 20,000 Professional Icons...", kMoreIcons),
        {},
        link("m_Web", "Varnel &Website", kWebsite),
        {.Name = "m_About", .Caption = "&About", .Run = [](MainWindow& form) { form.ShowAbout(); }},
    };
}

bool HasCommand(const Entry& entry) {
    return entry.Run || std::ranges::any_of(entry.Entries, HasCommand);
}

}  // namespace

MainMenu::MainMenu(MainWindow& form) {
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
                    QObject::connect(action, &QAction::triggered, &form,
                                     [run = entry.Run, &form] { run(form); });
                if (entry.State)
                    states_.push_back({action, entry.State});
            }
        };
    const Entry menus[] = {
        {"menu_File", "&File", {}, {}, nullptr, FileEntries()},
        {"menu_Image", "&Image", {}, {}, nullptr, ImageEntries()},
        {"menu_Edit", "&Edit", {}, {}, nullptr, EditEntries()},
        {"menu_Style", "&Style", {}, {}, nullptr, StyleEntries()},
        {"menu_Tools", "&Tool", {}, {}, nullptr, ToolEntries()},
        {"menu_Help", "&Help", {}, {}, nullptr, HelpEntries()},
    };
    for (const Entry& entry : menus) {
        QMenu* menu = form.menuBar()->addMenu(entry.Caption);
        menu->setObjectName(entry.Name);
        fill(*menu, entry.Entries);
        QObject::connect(menu, &QMenu::aboutToShow, &form, [&form] { form.ControlsChanged(); });
    }
    tips_ = form.findChild<QAction*>(kTipsName);
    orderMenu_ = new QMenu("Right_Layer", &form);
    orderMenu_->setObjectName("menu_Rightmenu");
    for (const char* name : {"m_BackOne", "m_FowardOne", "m_ToBack", "m_ToFront"})
        orderMenu_->addAction(form.findChild<QAction*>(name));
}

void MainMenu::ShowTipsState(bool enabled) {
    tips_->setChecked(enabled);
}

void MainMenu::ShowStates(const editing::Controls& controls) {
    for (const State& state : states_) {
        const editing::MenuEntry& entry = controls.*state.Entry;
        state.Action->setEnabled(entry.Enabled);
        if (state.Action->isCheckable())
            state.Action->setChecked(entry.Checked);
    }
}

}  // namespace orbelle::app
