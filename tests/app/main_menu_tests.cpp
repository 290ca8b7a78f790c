#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QImage>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTextBrowser>
#include <QUrl>
#include <set>

#include "app/main_window.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/page_commands.h"
#include "support/hands.h"
#include "waiting.h"

namespace orbelle::app {
namespace {

constexpr graphics::Argb kDot = 0x80FF8040;

class MainMenuTest : public ::testing::Test {
protected:
    MainMenuTest() { QGuiApplication::clipboard()->clear(); }

    QAction& Entry(const char* name) { return *window.findChild<QAction*>(name); }

    // A page with a dot in its only layer.
    void NewPage(int width, int height, int dotX, int dotY) {
        window.Run([=](editing::Editor& editor) {
            NewDocument(editor, width, height);
            editor.Page().Selected().Image.SetPixel(dotX, dotY, kDot);
        });
    }
    const document::Page& Page() const { return window.Editor().Page(); }

    MainWindow window;
};

// What enables an entry is the editor's business; that each follows its own command is the menu's.
TEST_F(MainMenuTest, EntriesShowTheStatesOfTheirCommands) {
    const auto expect = [this](bool enabled, std::initializer_list<const char*> names) {
        for (const char* name : names)
            EXPECT_EQ(Entry(name).isEnabled(), enabled) << name;
    };
    const auto& bar = *window.findChild<widgets::ButtonBar*>("MainBar");
    const auto isEnabled = [&bar](const char* button) {
        for (int part = 0; part < bar.PartCount(); ++part)
            if (bar.PartName(part) == button)
                return !bar.PartState(part).disabled;
        return false;
    };
    expect(false, {"Save", "SaveAs", "Export", "Undo", "Cut", "Crystal", "Origami", "Fresh"});
    expect(false, {"PencilTool", "LineTool", "EllipseTool", "RectangleTool"});
    expect(true, {"New", "Open", "Import", "Exit", "Samples", "SelectionTool"});
    EXPECT_FALSE(isEnabled("Save"));
    EXPECT_TRUE(isEnabled("Import"));
    NewPage(16, 16, 0, 0);
    expect(true, {"Save", "SaveAs", "Export", "Cut", "Crystal", "Origami", "PencilTool"});
    EXPECT_TRUE(isEnabled("Save"));
    expect(false, {"Undo", "Redo", "MergeDown", "ToBack", "ImageOpacity", "Grey"});
    window.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 16, 16); });
    expect(true, {"Undo", "MergeDown", "ToBack"});
    expect(false, {"ToFront"});
    expect(false, {"Deselect", "InvertSelection"});
    Entry("SelectAll").trigger();
    expect(true, {"SelectAll", "Deselect", "InvertSelection"});
    Entry("InvertSelection").trigger();
    expect(false, {"Deselect", "InvertSelection"});
}

TEST_F(MainMenuTest, TheToolInUseIsMarkedEvenAfterAClickOnItsOwnEntry) {
    NewPage(16, 16, 0, 0);
    for (const char* name : {"LineTool", "PencilTool", "PencilTool", "SelectionTool"}) {
        Entry(name).trigger();
        emit window.findChild<QMenu*>("ToolMenu")->aboutToShow();
        for (const char* other : {"SelectionTool", "PencilTool", "LineTool", "EllipseTool"})
            EXPECT_EQ(Entry(other).isChecked(), other == std::string_view(name)) << other;
    }
}

TEST_F(MainMenuTest, ThePasteEntryFollowsTheSystemsClipboard) {
    NewPage(3, 2, 1, 1);
    EXPECT_FALSE(Entry("Paste").isEnabled());
    Entry("Copy").trigger();
    EXPECT_TRUE(Entry("Paste").isEnabled());
    EXPECT_EQ(QGuiApplication::clipboard()->image().pixel(1, 1), kDot);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Orbelle");
    Entry("Paste").trigger();
    EXPECT_EQ(Page().Layers.at(1).Image.GetPixel(1, 1), kDot);

    // Another program copies a picture, and then a text.
    QImage other(1, 1, QImage::Format_ARGB32);
    other.fill(0xFF102030);
    QGuiApplication::clipboard()->setImage(other);
    Entry("Paste").trigger();
    EXPECT_EQ(Page().Selected().Image.GetPixel(0, 0), 0xFF102030);
    QGuiApplication::clipboard()->setText("words");
    EXPECT_FALSE(Entry("Paste").isEnabled());
}

TEST_F(MainMenuTest, EntriesRunTheCommandOfTheirName) {
    NewPage(2, 2, 0, 0);
    for (int i = 0; i < 2; ++i)
        window.Run([](editing::Editor& editor) { AddEmptyLayer(editor, 2, 2); });
    window.Run(
        [](editing::Editor& editor) { editor.Page().Selected().Image.SetPixel(0, 0, kDot); });
    using Counts = std::initializer_list<std::pair<const char*, int>>;
    for (const auto& [entry, place] :
         Counts{{"BackOne", 1}, {"ToBack", 0}, {"ForwardOne", 1}, {"ToFront", 2}}) {
        Entry(entry).trigger();
        EXPECT_EQ(Page().SelectedLayer, place) << entry;
    }
    const std::tuple<const char*, int, int> turns[] = {{"FlipHorizontal", 1, 0},
                                                       {"Rotate90Cw", 1, 1},
                                                       {"FlipVertical", 1, 0},
                                                       {"Rotate90Cww", 0, 1}};
    for (const auto& [entry, x, y] : turns) {
        Entry(entry).trigger();
        EXPECT_EQ(Page().Selected().Image.GetPixel(x, y), kDot) << entry;
    }
    for (const auto& [entry, layers] :
         Counts{{"MergeDown", 2}, {"Undo", 3}, {"Redo", 2}, {"Delete", 1}, {"Cut", 0}}) {
        Entry(entry).trigger();
        EXPECT_EQ(Page().LayerCount(), layers) << entry;
    }
}

TEST_F(MainMenuTest, UndoAndRedoSayWhatTheyWouldDo) {
    auto& bar = *window.findChild<widgets::ButtonBar*>("MainBar");
    const auto told = [&] {
        // As a screen reader has the buttons.
        const auto name = [&](const char* verb) {
            for (int part = 0; part < bar.PartCount(); ++part)
                if (bar.PartName(part).startsWith(verb))
                    return bar.PartName(part);
            return QString();
        };
        return (Entry("Undo").text() + ", " + Entry("Redo").text() + "; " + name("Undo") + ", " +
                name("Redo"))
            .toStdString();
    };
    EXPECT_EQ(told(), "&Undo, &Redo; Undo, Redo");
    NewPage(16, 16, 0, 0);
    EXPECT_EQ(told(), "&Undo, &Redo; Undo, Redo");
    Entry("Crystal").trigger();
    EXPECT_EQ(told(), "&Undo Crystal, &Redo; Undo Crystal, Redo");
    window.Run([](editing::Editor& editor) { SetPageSize(editor, 20, 16); });
    EXPECT_EQ(told(), "&Undo Page Size, &Redo; Undo Page Size, Redo");
    Entry("Undo").trigger();
    EXPECT_EQ(told(), "&Undo Crystal, &Redo Page Size; Undo Crystal, Redo Page Size");
    NewPage(16, 16, 0, 0);
    EXPECT_EQ(told(), "&Undo, &Redo; Undo, Redo");
}

TEST_F(MainMenuTest, LinksAndSamplesOpenOrSayWhatCouldNotBeOpened) {
    const auto status = [this] { return window.statusBar()->currentMessage(); };
    for (const char* name : {"WebsiteEntry", "DownloadSampleIcons", "DownloadIcons", "Samples"}) {
        QTextBrowser opener;  // for browser and file manager, which are missing here
        const bool isFolder = name == std::string_view("Samples");
        const char* const scheme = isFolder ? "file" : "https";
        QDesktopServices::setUrlHandler(scheme, &opener, "setSource");
        Entry(name).trigger();
        const QString address = opener.source().toString().section("file://", -1);
        EXPECT_FALSE(address.isEmpty()) << name;
        EXPECT_TRUE(status().endsWith(address)) << name;
        QDesktopServices::unsetUrlHandler(scheme);

        QString text;
        orbelle::testing::AnswerDialog<QMessageBox>([&](QMessageBox& box) {
            text = box.text();
            for (QAbstractButton* button : box.buttons())
                if (box.buttonRole(button) == QMessageBox::ActionRole)
                    button->click();
        });
        Entry(name).trigger();
        EXPECT_TRUE(text.endsWith('\n' + address)) << name << ": " << text.toStdString();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), address);
        orbelle::testing::AnswerDialog<QMessageBox>(
            [](QMessageBox& box) { orbelle::testing::Strike(box, Qt::Key_Escape); });
        Entry(name).trigger();
    }
}

TEST_F(MainMenuTest, EveryMnemonicIsUniqueInItsMenu) {
    QList<QWidget*> menus{window.menuBar()};
    for (QMenu* menu : window.menuBar()->findChildren<QMenu*>())
        menus += menu;
    for (const QWidget* menu : menus) {
        std::set<QString> mnemonics;
        for (const QAction* action : menu->actions()) {
            if (action->isSeparator())
                continue;
            const QString mnemonic = QKeySequence::mnemonic(action->text()).toString();
            EXPECT_FALSE(mnemonic.isEmpty()) << action->text().toStdString();
            EXPECT_TRUE(mnemonics.insert(mnemonic).second) << action->text().toStdString();
        }
    }
}

}  // namespace
}  // namespace orbelle::app
