// The list of recent files: what it holds, the menu and the empty window that show it.
#include "app/recent_files.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include "app/ask_commands.h"
#include "app/file_thumbnails.h"
#include "app/import_files.h"
#include "app/save_commands.h"
#include "app/settings.h"
#include "app/start_parts.h"
#include "app/start_view.h"
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
    void ShowEmptyWindow() {
        window.RestoreSettings();
        window.resize(1100, 760);
        window.activateWindow();
        ASSERT_TRUE(WaitUntil([&] { return window.IsAtRest(); }));
    }
    // That are shown.
    QList<FileTile*> Tiles() {
        QList<FileTile*> tiles = window.findChildren<FileTile*>();
        tiles.removeIf([](const FileTile* tile) { return !tile->isVisible(); });
        return tiles;
    }
    std::string Names() {
        std::string names;
        for (const FileTile* tile : Tiles())
            names += (names.empty() ? "" : " ") + tile->Path().stem().string();
        return names;
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

TEST_F(RecentFilesTest, TheEmptyWindowShowsThoseThatAreThere) {
    RecentFiles files;
    files.Restore();
    for (int i = 0; i < 10; ++i) {
        const std::string name = std::to_string(i) + ".png";
        files.Note(folder / name);
        if (i != 8)
            Picture(name.c_str(), i + 1, 4);
    }
    ShowEmptyWindow();
    EXPECT_EQ(Names(), "9 7 6 5 4 3");
    EXPECT_EQ(Tiles()[0]->accessibleName().toStdString(), "9.png, " + folder.Path().string());
    EXPECT_EQ(Tiles()[0]->toolTip(), Path("9.png"));
    QAccessibleInterface* tile = QAccessible::queryAccessibleInterface(Tiles()[0]);
    EXPECT_EQ(tile->role(), QAccessible::Button);
    EXPECT_TRUE(tile->state().focusable);

    Tiles()[1]->setFocus();
    QTimer::singleShot(0, [] {
        auto& menu = *qobject_cast<QMenu*>(QApplication::activePopupWidget());
        menu.actions()[0]->trigger();
        menu.close();
    });
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(Tiles()[1], &wanted);
    EXPECT_TRUE(WaitUntil([&] { return Names() == "9 6 5 4 3 2"; }));
    EXPECT_EQ(window.focusWidget(), Tiles()[1]) << "the one that follows";

    window.activateWindow();
    QApplication::processEvents();
    Scene().setFocus();
    for (const char* name : {"StartNew", "StartOpen"}) {
        Strike(*QApplication::focusWidget(), Qt::Key_Tab, "\t");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
    Strike(*QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), Tiles()[0]);
    Strike(*QApplication::focusWidget(), Qt::Key_Right);
    ASSERT_EQ(QApplication::focusWidget(), Tiles()[1]);
    Strike(*Tiles()[1], Qt::Key_Return, "\r");
    EXPECT_TRUE(WaitUntil([&] { return Page().Width == 7; }));
    EXPECT_TRUE(Tiles().isEmpty());
    EXPECT_EQ(QApplication::focusWidget(), &Scene());
}

TEST_F(RecentFilesTest, TheEmptyWindowShowsAsManyAsFitBesideTheWelcome) {
    RecentFiles files;
    files.Restore();
    for (const char* name : {"1.png", "2.png", "3.png", "4.png"}) {
        Picture(name, 4, 4);
        files.Note(folder / name);
    }
    ShowEmptyWindow();
    auto& view = *window.findChild<StartView*>();
    const auto areApart = [&] {
        const std::vector<QRect> places = view.Places();
        for (std::size_t i = 0; i < places.size(); ++i) {
            EXPECT_TRUE(view.rect().contains(places[i]))
                << view.width() << 'x' << view.height() << ' ' << i << " to " << places[i].bottom();
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(places[i].intersects(places[j])) << i << ' ' << j;
        }
    };
    const auto tilesAt = [&](QSize size) {
        window.resize(size);
        QApplication::processEvents();
        areApart();
        return Tiles().size();
    };
    EXPECT_EQ(tilesAt({1100, 760}), 4);
    const std::vector<QRect> without = view.Places();
    window.StartWelcome();
    EXPECT_EQ(view.Places(), without) << "nothing moves below the hand";
    EXPECT_LT(tilesAt({700, 760}), 4);
    EXPECT_EQ(tilesAt(window.minimumSizeHint()), 0) << "they come after the text";
    window.Run([](editing::Editor& editor) { NewDocument(editor, 4, 4); });
    EXPECT_TRUE(view.isHidden());
}

TEST_F(RecentFilesTest, TheEmptyWindowSaysWhereToDrop) {
    ShowEmptyWindow();
    auto& hint = *window.findChild<QWidget*>("DropHint");
    const QImage calm = hint.grab().toImage();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Picture("a.png", 4, 4))});
    EXPECT_TRUE(IsTaken(data));
    EXPECT_NE(hint.grab().toImage(), calm);
    QDragLeaveEvent leave;
    QApplication::sendEvent(&Scene(), &leave);
    EXPECT_EQ(hint.grab().toImage(), calm);
}

TEST_F(RecentFilesTest, ThumbnailsAreMadeBesideTheWork) {
    Picture("a.png", 60, 30);
    graphics::WriteFile(folder / "bad.png", std::vector<std::uint8_t>{1, 2, 3});
    std::vector<fs::path> there;
    std::vector<QImage> pictures;
    FileThumbnails thumbnails;
    QObject::connect(&thumbnails, &FileThumbnails::Found,
                     [&](const std::vector<fs::path>& paths) { there = paths; });
    QObject::connect(&thumbnails, &FileThumbnails::Made,
                     [&](const fs::path&, const QImage& picture) { pictures.push_back(picture); });
    const std::vector<fs::path> wanted = {folder / "none", folder / "bad.png", folder / "a.png"};
    thumbnails.Want(wanted, 6, 99);
    thumbnails.Want(wanted, 6, 20);
    EXPECT_TRUE(WaitUntil([&] { return pictures.size() == 2; }));
    EXPECT_THAT(there, ElementsAre(wanted[1], wanted[2]));
    EXPECT_TRUE(pictures[0].isNull());
    EXPECT_EQ(pictures[1].size(), QSize(20, 10));
    EXPECT_EQ(pictures[1].pixel(0, 0), kRed);

    Picture("a.png", 10, 30);
    thumbnails.Want(wanted, 1, 20);
    EXPECT_TRUE(WaitUntil([&] { return pictures.size() == 3; }));
    thumbnails.Want({wanted[2]}, 1, 20);
    EXPECT_TRUE(WaitUntil([&] { return pictures.size() == 4; }));
    EXPECT_EQ(pictures[3].size(), QSize(7, 20)) << "another file of that name";
    thumbnails.Want(wanted, 6, 20);
    thumbnails.Stop();
    EXPECT_FALSE(WaitUntil([&] { return pictures.size() > 4; }, 1));
}

}  // namespace
}  // namespace orbelle::app
