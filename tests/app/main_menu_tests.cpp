#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMenuBar>
#include <algorithm>
#include <set>

#include "app/main_window.h"
#include "editing/document_commands.h"
#include "editing/layer_commands.h"
#include "editing/style_commands.h"

namespace orbelle::app {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAreArray;

// The entries of a menu and its submenus, in order, without separators: all, or those that can be
// reached and chosen.
enum class Which { All, Enabled };
std::vector<QAction*> Entries(const QMenu& menu, Which which) {
    std::vector<QAction*> entries;
    for (QAction* action : menu.actions()) {
        if (action->isSeparator() || (which == Which::Enabled && !action->isEnabled()))
            continue;
        entries.push_back(action);
        if (action->menu())
            std::ranges::copy(Entries(*action->menu(), which), std::back_inserter(entries));
    }
    return entries;
}

std::string Caption(const QAction& action) {
    return action.text().remove('&').toStdString();
}

class MainMenuTest : public ::testing::Test {
protected:
    MainMenuTest() { QGuiApplication::clipboard()->clear(); }

    QMenu& Menu(const char* name) { return *form.findChild<QMenu*>(name); }

    std::vector<std::string> Captions(const char* menu) {
        std::vector<std::string> captions;
        for (const QAction* entry : Entries(Menu(menu), Which::All))
            captions.push_back(Caption(*entry));
        return captions;
    }

    std::set<std::string> EnabledNames() {
        std::set<std::string> names;
        for (const QMenu* menu : form.menuBar()->findChildren<QMenu*>(Qt::FindDirectChildrenOnly))
            for (const QAction* entry : Entries(*menu, Which::Enabled))
                names.insert(entry->objectName().toStdString());
        return names;
    }

    MainWindow form;
};

TEST_F(MainMenuTest, CaptionsStandInTheirOrder) {
    std::vector<std::string> menus;
    for (const QAction* menu : form.menuBar()->actions())
        menus.push_back(Caption(*menu));
    EXPECT_THAT(menus, ElementsAre("File", "Image", "Edit", "Style", "Tool", "Help"));

    EXPECT_THAT(Captions("menu_File"),
                ElementsAre("New", "Open", "Save", "Save As...", "Import...", "Export...",
                            "ICO Windows Icon File", "PNG with Transparency", "GIF Image",
                            "JPEG Image", "BMP Image", "Exit"));
    EXPECT_THAT(Captions("menu_Image"),
                ElementsAre("Opacity...", "Grey", "Background Color", "Set Background Color",
                            "Transparency Background Color"));
    EXPECT_THAT(Captions("menu_Edit"),
                ElementsAre("Undo", "Redo", "Cut", "Copy", "Paste", "Delete", "Merge Down",
                            "Flip Horizontal", "Flip Veritcal", "Rotate 90 CW", "Rotate 90 CWW",
                            "Back One", "Foward One", "To Back", "To Front"));
    EXPECT_THAT(Captions("menu_Style"),
                ElementsAre("Disabled State", "Hot State", "Varnel Fresh Style", "IOS Style",
                            "Origami style", "Vertical", "Horizontal", "Mac Style", "Vista Style",
                            "Crystal Style", "Blur", "Sharpen", "Irradiation", "Shade",
                            "Reflection", "Drop Shadow"));
    EXPECT_THAT(Captions("menu_Tools"),
                ElementsAre("Selecetion", "Pencil", "Line", "Ellipse", "Rectangle"));
    EXPECT_THAT(
        Captions("menu_Help"),
        ElementsAre("Tips", "Samples", "Free Download Sample Icons...",
                    "Download Over 20,000 Professional Icons...", "Varnel Website", "About"));
}

// With the entries that can always be chosen.
std::vector<std::string> Joined(std::vector<std::string> names) {
    for (const char* name : {"m_Exit", "m_New", "m_Open", "m_Selection", "m_Pencil", "m_Line",
                             "m_Ellipse", "m_Rectangle", "m_Tips", "m_Samples", "m_DownloadSample",
                             "m_GetIcons", "m_Web", "m_About"})
        names.emplace_back(name);
    return names;
}

TEST_F(MainMenuTest, EntriesAreEnabledOnlyWhileTheirCommandCanRun) {
    EXPECT_THAT(EnabledNames(), UnorderedElementsAreArray(Joined({"m_freshstyle"})));

    form.Run([](editing::Editor& editor) {
        ResetDocument(editor, 16, 16, true);
        editor.DocumentExists = true;
    });
    emit Menu("menu_File").aboutToShow();
    EXPECT_THAT(EnabledNames(), UnorderedElementsAreArray(Joined({"m_90CW",
                                                                  "m_90CWW",
                                                                  "m_Blur",
                                                                  "m_Copy",
                                                                  "m_Crystal",
                                                                  "m_Cut",
                                                                  "m_Del",
                                                                  "m_Disabled",
                                                                  "m_Export",
                                                                  "m_ExportFormat0",
                                                                  "m_ExportFormat1",
                                                                  "m_ExportFormat2",
                                                                  "m_ExportFormat3",
                                                                  "m_ExportFormat4",
                                                                  "m_Hot",
                                                                  "m_Import",
                                                                  "m_Irradiation",
                                                                  "m_Macstyle",
                                                                  "m_Reflection",
                                                                  "m_Save",
                                                                  "m_Shade",
                                                                  "m_Shadow",
                                                                  "m_Sharpen",
                                                                  "m_Vistastyle",
                                                                  "m_freshstyle",
                                                                  "m_iosstyle",
                                                                  "m_origamistyle",
                                                                  "m_origamistylelevel0",
                                                                  "m_origamistylelevel1",
                                                                  "menu_FlipH",
                                                                  "menu_FlipV",
                                                                  "menu_SaveAs"})));

    form.Run(editing::Crystal);
    EXPECT_EQ(EnabledNames().count("m_Undo"), 1u);
    EXPECT_EQ(EnabledNames().count("m_Redo"), 0u);
    Menu("menu_Edit").actions().constFirst()->trigger();
    EXPECT_EQ(EnabledNames().count("m_Redo"), 1u);
}

TEST_F(MainMenuTest, ThePasteEntryFollowsTheSystemsClipboard) {
    const auto choose = [&](const char* name) { form.findChild<QAction*>(name)->trigger(); };
    form.Run([](editing::Editor& editor) {
        ResetDocument(editor, 3, 2, true);
        editor.DocumentExists = true;
        editor.Document.Selected().Image.SetPixel(1, 1, 0x80FF8040);
        editor.Host.ControlsChanged();
    });
    EXPECT_EQ(EnabledNames().count("m_Paste"), 0u);
    choose("m_Copy");
    EXPECT_EQ(EnabledNames().count("m_Paste"), 1u);
    const QImage copied = QGuiApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), QSize(3, 2));
    EXPECT_EQ(copied.pixel(1, 1), 0x80FF8040);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Orbelle");
    choose("m_Paste");
    EXPECT_EQ(form.Editor().Document.Layers.at(1).Image.GetPixel(1, 1), 0x80FF8040);

    // Another program copies a picture, and then a text.
    QImage other(1, 1, QImage::Format_ARGB32);
    other.fill(0xFF102030);
    QGuiApplication::clipboard()->setImage(other);
    choose("m_Paste");
    EXPECT_EQ(form.Editor().Document.Selected().Image.GetPixel(0, 0), 0xFF102030);
    QGuiApplication::clipboard()->setText("words");
    EXPECT_EQ(EnabledNames().count("m_Paste"), 0u);
}

TEST_F(MainMenuTest, EntriesOfTheStackRunTheCommandOfTheirName) {
    const auto choose = [&](const char* name) { form.findChild<QAction*>(name)->trigger(); };
    form.Run([](editing::Editor& editor) {
        ResetDocument(editor, 2, 2, true);
        editor.DocumentExists = true;
        AddLayerCommand(editor);
        AddLayerCommand(editor);
        editor.Document.Selected().Image.SetPixel(0, 0, 0xFF204060);
        editor.Host.ControlsChanged();
    });
    const document::Document& document = form.Editor().Document;
    const auto pixel = [&](int x, int y) {
        return document.Selected().Image.GetPixel(x, y) == 0xFF204060;
    };
    for (const auto& [entry, place] : std::initializer_list<std::pair<const char*, int>>{
             {"m_BackOne", 1}, {"m_ToBack", 0}, {"m_FowardOne", 1}, {"m_ToFront", 2}}) {
        choose(entry);
        EXPECT_EQ(document.SelectedLayer, place) << entry;
    }
    choose("menu_FlipH");
    EXPECT_TRUE(pixel(1, 0));
    choose("m_90CW");
    EXPECT_TRUE(pixel(1, 1));
    choose("menu_FlipV");
    EXPECT_TRUE(pixel(1, 0));
    choose("m_90CWW");
    EXPECT_TRUE(pixel(0, 1));
    choose("menu_Merge");
    EXPECT_EQ(document.LayerCount(), 2);
    choose("m_Del");
    EXPECT_EQ(document.LayerCount(), 1);
    choose("m_Cut");
    EXPECT_EQ(document.LayerCount(), 0);
}

TEST_F(MainMenuTest, EveryMnemonicIsUniqueInItsMenu) {
    QList<QWidget*> menus{form.menuBar()};
    for (QMenu* menu : form.menuBar()->findChildren<QMenu*>())
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
