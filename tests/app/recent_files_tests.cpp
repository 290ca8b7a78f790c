// The list of recent files: what it holds, the menu and the empty window that show it.
#include "app/recent_files.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include "app/ask_commands.h"
#include "app/import_files.h"
#include "app/recent_files_view.h"
#include "app/save_commands.h"
#include "app/settings.h"
#include "desk.h"
#include "main_window_fixture.h"

namespace orbelle::app {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class RecentFilesTest : public MainWindowTest {
protected:
    RecentFilesTest() { Settings().clear(); }

    QStringList Entries() {
        QStringList entries;
        for (const QAction* entry : Menu().actions())
            entries += entry->text();
        return entries;
    }
    QMenu& Menu() { return *window.findChild<QAction*>("OpenRecent")->menu(); }
    QList<QPushButton*> Rows() {
        return window.findChild<RecentFilesView*>()->findChildren<QPushButton*>();
    }
};

TEST_F(RecentFilesTest, HoldsWhatWasOpenedOrSavedAndNothingElse) {
    const fs::path a = Picture("a.png", 4, 4).toStdString(), b = folder / "b.volf",
                   none = folder / "none.png";
    Desk desk;
    desk.ToRead = a;
    desk.ToWrite = b;
    ImportFiles(desk.Context, {a});
    EXPECT_THAT(desk.Recent.Paths(), IsEmpty());
    AskSave(desk.Context);
    EXPECT_THAT(desk.Recent.Paths(), ElementsAre(b));
    AskOpen(desk.Context);
    desk.ToRead = none;
    AskOpen(desk.Context);
    desk.ToWrite = folder / "no folder" / "c.volf";
    AskSaveAs(desk.Context);
    desk.ToWrite = folder / "d.png";
    AskExport(desk.Context, kExportEntries[3]);
    EXPECT_THAT(desk.Recent.Paths(), ElementsAre(a, b));
    ImportFiles(desk.Context, {b});
    EXPECT_THAT(desk.Recent.Paths(), ElementsAre(b, a)) << "a document that is imported opens";
}

TEST_F(RecentFilesTest, IsStoredWhateverTheNames) {
    std::vector<fs::path> noted;
    RecentFiles files;
    files.Note("/before");
    EXPECT_TRUE(Settings().isEmpty()) << "not asked for yet";
    files.Restore();
    for (const char* name : {"/x", "/@Invalid()", "/a, \"b\"", "/50%41%", "/\xC3\xA4 \xE2\x88\x9E",
                             "/odd\xFF\x01\n", "/;=[x]", "/c:\\d", "/ ", "/e&f", "/g", "/h"}) {
        files.Note(name);
        noted.insert(noted.begin(), name);
        RecentFiles again;
        again.Restore();
        EXPECT_EQ(again.Paths().front(), name);
    }
    noted.resize(10);
    EXPECT_THAT(files.Paths(), ElementsAreArray(noted));
    RecentFiles other;
    other.Restore();
    EXPECT_THAT(other.Paths(), ElementsAreArray(noted));
    other.Note("/g");
    files.Note("/h");
    EXPECT_EQ(files.Paths()[1], "/g") << "what another window noted is kept";
    files.Forget("/g");
    files.Clear();
    other.Restore();
    EXPECT_THAT(other.Paths(), IsEmpty());

    Settings().setValue("RecentFiles", QStringList{"", "relative", "/a%00b", "/c", "/c", "%"});
    other.Restore();
    EXPECT_THAT(other.Paths(), ElementsAre("/c"));
}

TEST_F(RecentFilesTest, TheMenuOpensThemAndDropsWhatIsMissing) {
    EXPECT_FALSE(Menu().menuAction()->isEnabled());
    const QString first = Picture("a&b.png", 4, 4), second = Picture("second.png", 6, 6);
    window.OpenPath(first);
    window.OpenPath(second);
    EXPECT_TRUE(Menu().menuAction()->isEnabled());
    EXPECT_EQ(Entries(), QStringList({"&1 second.png", "&2 a&&b.png", "", "&Clear Menu"}));
    EXPECT_EQ(Menu().actions()[1]->toolTip(), first);
    EXPECT_EQ(Menu().actions()[1]->statusTip(), first);
    Menu().actions()[1]->trigger();
    EXPECT_TRUE(WaitUntil([&] { return Page().Width == 4; }));
    EXPECT_EQ(Entries()[1], "&2 second.png");

    fs::remove(second.toStdString());
    QString told;
    AnswerDialog<QMessageBox>([&](QMessageBox& box) {
        told = box.text();
        box.accept();
    });
    window.Run([](editing::Editor& editor) { editor.Document.Modified = true; });
    Menu().actions()[1]->trigger();
    EXPECT_TRUE(WaitUntil([&] { return !told.isEmpty(); })) << "before any save prompt";
    EXPECT_TRUE(told.startsWith(second));
    EXPECT_EQ(Entries(), QStringList({"&1 a&&b.png", "", "&Clear Menu"}));
    EXPECT_EQ(Page().Width, 4);
    Menu().actions().back()->trigger();
    EXPECT_TRUE(WaitUntil([&] { return !Menu().menuAction()->isEnabled(); }));
}

TEST_F(RecentFilesTest, TheEmptyWindowListsThem) {
    EXPECT_TRUE(Rows().isEmpty());
    RecentFiles files;
    files.Restore();
    for (int i = 0; i < 8; ++i)
        files.Note(folder / (std::to_string(i) + ".png"));
    Picture("6.png", 5, 5);
    window.RestoreSettings();
    window.resize(1100, 760);
    window.activateWindow();
    ASSERT_TRUE(WaitUntil([&] { return Rows().size() == 6 && Scene().height() > 500; }));
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(Rows()[i]->isVisible(), i < (Scene().height() / 2 - 90) / 24 - 1) << i;
    EXPECT_EQ(Rows()[0]->accessibleName().toStdString(), "7.png, " + folder.Path().string());
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(Rows()[0]);
    EXPECT_EQ(row->role(), QAccessible::Button);
    EXPECT_TRUE(row->state().focusable);

    AnswerDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
    Click(*Rows()[0], {9, 9});
    EXPECT_TRUE(WaitUntil([&] { return Rows()[0]->accessibleName().startsWith("6"); }));
    window.activateWindow();
    QApplication::processEvents();
    Scene().setFocus();
    Strike(Scene(), Qt::Key_Tab, "\t");
    ASSERT_EQ(QApplication::focusWidget(), Rows()[0]);
    Strike(*Rows()[0], Qt::Key_Return, "\r");
    EXPECT_TRUE(WaitUntil([&] { return Page().Width == 5; }));
    EXPECT_FALSE(Rows()[0]->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &Scene());
}

}  // namespace
}  // namespace orbelle::app
