// The strip of sizes in the window.
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>

#include "app/settings.h"
#include "app/sizes_panel.h"
#include "app/suggest_dialog.h"
#include "editing/adjust_sliders.h"
#include "editing/selection_commands.h"
#include "editing/size_commands.h"
#include "editing/undo_commands.h"
#include "formats/size_pictures.h"
#include "main_window_fixture.h"
#include "widgets/panel_header.h"
#include "widgets/size_strip.h"

namespace orbelle::app {
namespace {

using document::Family;
using widgets::SizeStrip;

class SizesPanelTest : public MainWindowTest {
protected:
    SizesPanel& Panel() { return *window.findChild<SizesPanel*>(); }
    SizeStrip& Strip() { return *window.findChild<SizeStrip*>(); }
    std::vector<int> Sizes() {
        std::vector<int> sizes;
        for (const widgets::SizeCell& cell : Strip().Cells())
            sizes.push_back(cell.Size);
        return sizes;
    }
    const widgets::SizeCell& Cell(int size) {
        return *std::ranges::find(Strip().Cells(), size, &widgets::SizeCell::Size);
    }
    void WaitForPictures() {
        ASSERT_TRUE(WaitUntil([&] { return window.IsAtRest(); }));
    }
    void ClickCell(int size) { Click(Strip(), Strip().CellPlace(size).center()); }
    int Edited() const { return window.Editor().Document.EditedSize; }
    int Steps() const { return window.Editor().History.UndoIndex(); }

    void ExpectPicturesOfTheExport() {
        WaitForPictures();
        const formats::FlatFamily flat =
            formats::Flatten(window.Editor().Document, window.Editor().Canvas);
        for (const widgets::SizeCell& cell : Strip().Cells()) {
            const graphics::Bitmap picture = PictureForSize(flat, cell.Size);
            const QImage expected(reinterpret_cast<const uchar*>(picture.Pixels()), cell.Size,
                                  cell.Size, QImage::Format_ARGB32);
            EXPECT_EQ(cell.Picture, expected) << cell.Size;
        }
    }
};

TEST_F(SizesPanelTest, ShowsWhatAnExportWouldMakeWhileTheHandMoves) {
    EXPECT_FALSE(Strip().isEnabled());
    OpenPicture(200, 120);
    EXPECT_TRUE(Strip().isEnabled());
    EXPECT_EQ(Sizes(), (std::vector<int>{128, 64, 48, 32, 24, 16}));
    ExpectPicturesOfTheExport();
    const QImage before = Cell(48).Picture;
    window.Run(editing::PressOpacity);
    window.RunDuringDrag([](editing::Editor& editor) { ChangeOpacity(editor, 40); });
    ExpectPicturesOfTheExport();
    EXPECT_NE(Cell(48).Picture, before) << "in the middle of a drag";
    window.RunDuringDrag(editing::ReleaseOpacity);
    // Faster than the pictures can be made: the last one counts.
    window.Run(editing::PressOpacity);
    for (int opacity = 0; opacity <= 70; ++opacity)
        window.RunDuringDrag([=](editing::Editor& editor) { ChangeOpacity(editor, opacity); });
    window.RunDuringDrag(editing::ReleaseOpacity);
    ClickCell(24);
    ExpectPicturesOfTheExport();
    NewPage(16, 16);
    ExpectPicturesOfTheExport();
    EXPECT_EQ(Sizes(), (std::vector<int>{64, 48, 32, 24, 16}));
}

TEST_F(SizesPanelTest, MakesNothingWhileItIsClosedOrHidden) {
    Panel().SetOpen(false);
    OpenPicture(64, 64);
    WaitForPictures();
    EXPECT_TRUE(Strip().Cells().empty() || Cell(16).Picture.isNull());
    Panel().SetOpen(true);
    ExpectPicturesOfTheExport();
    const QImage before = Cell(16).Picture;
    window.hide();
    window.Run(editing::PressOpacity);
    window.RunDuringDrag([](editing::Editor& editor) { ChangeOpacity(editor, 40); });
    WaitForPictures();
    EXPECT_EQ(Cell(16).Picture, before);
    window.show();
    ExpectPicturesOfTheExport();
    EXPECT_NE(Cell(16).Picture, before);
}

TEST_F(SizesPanelTest, AClickGoesToASizeAndTheNextOneBack) {
    OpenPicture(200, 200);
    ClickCell(16);
    EXPECT_EQ(Edited(), 16);
    EXPECT_EQ(Steps(), 1);
    EXPECT_TRUE(Cell(16).IsDrawnByHand);
    EXPECT_TRUE(window.windowTitle().contains("16 x 16"));
    EXPECT_TRUE(
        window.statusBar()->currentMessage().startsWith("16 x 16 has a picture of its own"));
    ClickCell(16);
    EXPECT_EQ(Edited(), Family::kMaster);
    EXPECT_FALSE(window.windowTitle().contains("16 x 16"));
    ClickCell(16);
    EXPECT_EQ(Edited(), 16);
    EXPECT_EQ(Steps(), 1) << "it is there already";
    EXPECT_EQ(window.statusBar()->currentMessage(), "");

    // Escape gives up other things first.
    window.Run(editing::SelectAll);
    auto* escape = [&]() -> QAction* {
        for (QAction* action : window.actions())
            if (action->shortcut() == Qt::Key_Escape)
                return action;
        return nullptr;
    }();
    escape->trigger();
    EXPECT_FALSE(window.Editor().Selection.Exists());
    EXPECT_EQ(Edited(), 16);
    escape->trigger();
    EXPECT_EQ(Edited(), Family::kMaster);
}

TEST_F(SizesPanelTest, TheMenuOfACellMakesCopiesAndDrops) {
    OpenPicture(200, 200);
    const auto choose = [this](int size, const QStringList& path) {
        const QPoint at = Strip().CellPlace(size).center();
        QContextMenuEvent wanted(QContextMenuEvent::Mouse, at, Strip().mapToGlobal(at));
        QApplication::sendEvent(&Strip(), &wanted);
        const QMenu* menu = window.findChild<QMenu*>("SizeMenu");
        QAction* chosen = nullptr;
        for (const QString& caption : path) {
            chosen = nullptr;
            for (QAction* action : menu->actions())
                if (action->text() == caption)
                    chosen = action;
            if (chosen && chosen->menu())
                menu = chosen->menu();
        }
        const bool isEnabled = chosen && chosen->isEnabled();
        if (isEnabled)
            chosen->trigger();
        delete window.findChild<QMenu*>("SizeMenu");
        return isEnabled;
    };
    EXPECT_FALSE(choose(24, {"&Back to Master's"}));
    EXPECT_TRUE(choose(24, {"&Draw by Hand"}));
    EXPECT_EQ(Edited(), 24);
    EXPECT_FALSE(choose(24, {"&Copy to Size...", "24 x 24"}));
    EXPECT_TRUE(choose(24, {"&Copy to Size...", "128 x 128"}));
    EXPECT_EQ(Edited(), 128);
    EXPECT_TRUE(choose(24, {"&Back to Master's"}));
    EXPECT_EQ(Edited(), Family::kMaster);
    EXPECT_FALSE(Cell(24).IsDrawnByHand);
    EXPECT_TRUE(Cell(128).IsDrawnByHand);
    window.Run(editing::Undo);
    EXPECT_TRUE(Cell(24).IsDrawnByHand);
    AnswerDialog<SuggestDialog>(
        [](SuggestDialog& dialog) { dialog.findChildren<QPushButton*>()[1]->click(); });
    EXPECT_TRUE(choose(48, {"&Suggest..."}));
    EXPECT_EQ(Edited(), 48);
}

TEST_F(SizesPanelTest, TheSizeThatIsEditedIsShownWhateverTheRoom) {
    OpenPicture(256, 256);
    EXPECT_EQ(Sizes().front(), 128) << "256 leaves too little of the scene";
    const int scene = Scene().height();
    window.Run([](editing::Editor& editor) { EditSize(editor, 256); });
    EXPECT_EQ(Sizes().front(), 256);
    EXPECT_TRUE(WaitUntil([&] { return Scene().height() < scene; }));
    window.Run(editing::Undo);
    EXPECT_EQ(Sizes().front(), 128);
    window.resize(700, 500);
    QApplication::processEvents();
    EXPECT_EQ(Sizes(), (std::vector<int>{64, 48, 32, 24, 16}));
}

TEST_F(SizesPanelTest, WhatItLiesOnIsRemembered) {
    Settings().clear();
    window.RestoreSettings();
    EXPECT_FALSE(Panel().Header().IsClosed()) << "a first start";
    Click(Part<ButtonBar>("SizesTools"), Part<ButtonBar>("SizesTools").ButtonRect(4).center());
    Click(Part<ButtonBar>("SizesTools"), Part<ButtonBar>("SizesTools").ButtonRect(7).center());
    EXPECT_EQ(Strip().Ground(), widgets::StripGround::Dark);
    EXPECT_TRUE(Strip().IsDoubled());
    Panel().SetOpen(false);
    window.StoreSettings();
    MainWindow next;
    next.RestoreSettings();
    const auto& panel = *next.findChild<SizesPanel*>();
    EXPECT_TRUE(panel.Header().IsClosed());
    EXPECT_EQ(panel.Ground(), 3);
    EXPECT_TRUE(panel.IsDoubled());
    for (const int unknown : {-1, 5}) {
        Panel().SetGround(unknown);
        EXPECT_EQ(Panel().Ground(), 0);
    }
    Settings().clear();
}

}  // namespace
}  // namespace orbelle::app
