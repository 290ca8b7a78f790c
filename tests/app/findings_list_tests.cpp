// Tool / Check Icon: the list of findings under the strip of sizes.
#include "app/findings_list.h"

#include "app/settings.h"
#include "app/sizes_panel.h"
#include "editing/adjust_sliders.h"
#include "editing/document_commands.h"
#include "editing/size_commands.h"
#include "editing/stack_commands.h"
#include "main_window_fixture.h"
#include "widgets/panel_header.h"

namespace orbelle::app {
namespace {

using document::Family;

// Seen well on both grounds.
constexpr graphics::Argb kGood = 0xFFC04040;

class CheckIconTest : public MainWindowTest {
protected:
    QAction& Entry() { return *window.findChild<QAction*>("CheckIcon"); }
    FindingsList& List() { return *window.findChild<FindingsList*>(); }
    SizesPanel& Panel() { return *window.findChild<SizesPanel*>(); }
    void Open(graphics::Argb color, int side) {
        graphics::WriteFile(folder / "a.png",
                            graphics::EncodePng(FilledPicture(side, side, color)));
        window.OpenPath(Path("a.png"));
        WaitUntil([&] { return !window.IsZoomAnimationRunning(); });
    }
    // Line by line, when all is at rest.
    QStringList Lines() {
        EXPECT_TRUE(WaitUntil([&] { return window.IsAtRest(); }));
        QStringList lines;
        for (int row = 0; row < List().count(); ++row)
            lines += List().item(row)->text();
        return lines;
    }
    void ClickLine(int row) {
        Click(*List().viewport(), List().visualItemRect(List().item(row)).center());
    }
    int Edited() const { return window.Editor().Document.EditedSize; }
};

TEST_F(CheckIconTest, TheListIsThereWhenAskedForAndFollowsEachStep) {
    Open(0xFFFFFFFF, 256);
    EXPECT_FALSE(List().isVisible());
    EXPECT_TRUE(Lines().empty()) << "nothing is checked";
    Entry().trigger();
    EXPECT_TRUE(Entry().isChecked());
    EXPECT_TRUE(List().hasFocus());
    const QString text = ": hard to see on white (contrast 1.0 : 1)";
    EXPECT_EQ(Lines(), (QStringList{"16" + text, "24" + text, "32" + text, "48" + text, "64" + text,
                                    "128" + text, "256" + text}))
        << "of all sizes of an export, also those that the strip has no room for";
    EXPECT_EQ(List().focusPolicy() & Qt::TabFocus, Qt::TabFocus);

    // In the middle of a drag.
    window.Run(editing::PressOpacity);
    window.RunDuringDrag([](editing::Editor& editor) { ChangeOpacity(editor, 0); });
    EXPECT_EQ(Lines()[0], "16: nothing can be seen");
    window.RunDuringDrag([](editing::Editor& editor) { ChangeOpacity(editor, 40); });
    EXPECT_EQ(Lines(), QStringList{"Nothing found"}) << "no outline of alpha 128";
    window.RunDuringDrag(editing::ReleaseOpacity);

    Entry().trigger();
    EXPECT_FALSE(List().isVisible());
    EXPECT_FALSE(Entry().isChecked());
    EXPECT_TRUE(Scene().hasFocus());
    // It opens a panel that is closed, and goes with it.
    Panel().SetOpen(false);
    Entry().trigger();
    EXPECT_TRUE(List().isVisible());
    Panel().Header().click();
    EXPECT_FALSE(List().isVisible());
    window.ShowControls();
    EXPECT_FALSE(Entry().isChecked());
}

TEST_F(CheckIconTest, ALineGoesToItsSize) {
    Open(0xFFFFFFFF, 200);
    Entry().trigger();
    ASSERT_EQ(Lines().size(), 6);
    ClickLine(1);
    EXPECT_EQ(Edited(), 24);
    EXPECT_TRUE(Scene().hasFocus());
    ASSERT_EQ(Lines().size(), 6) << "a copy of the master's is no better";
    ClickLine(1);
    EXPECT_EQ(Edited(), 24) << "and not away from it again";
    EXPECT_EQ(List().currentRow(), 1);

    List().setFocus();
    Strike(List(), Qt::Key_Up);
    Strike(List(), Qt::Key_Return);
    EXPECT_EQ(Edited(), 16);
    EXPECT_TRUE(List().hasFocus());
    window.Run([](editing::Editor& editor) { GoToPage(editor, 24); });
    Strike(List(), Qt::Key_Space);
    EXPECT_EQ(Edited(), 16);

    // The line stays with the keys when one before it goes.
    Strike(List(), Qt::Key_Down);
    Strike(List(), Qt::Key_Down);
    window.Run(editing::PressOpacity);
    window.RunDuringDrag([](editing::Editor& editor) { ChangeOpacity(editor, 40); });
    EXPECT_EQ(Lines().size(), 5);
    EXPECT_TRUE(List().currentItem()->text().startsWith("32: "));
}

TEST_F(CheckIconTest, WhatIsClippedIsAPageOrTheMaster) {
    Open(kGood, 64);
    Entry().trigger();
    EXPECT_EQ(Lines(), QStringList{"Nothing found"});
    ClickLine(0);
    const auto move = [](editing::Editor& editor) { editor.Page().Layers[0].Rect.X = -3; };
    const auto clip = [&](editing::Editor& editor) {
        move(editor);
        editor.Changed.Pixels = true;
    };
    window.Run(clip);
    window.Run([](editing::Editor& editor) { EditSize(editor, 16); });
    window.Run(clip);
    EXPECT_EQ(Lines(),
              (QStringList{"16: the page cuts layers off", "64: the page cuts layers off"}));
    ClickLine(1);
    EXPECT_EQ(Edited(), Family::kMaster);
    ClickLine(0);
    EXPECT_EQ(Edited(), 16);
}

TEST_F(CheckIconTest, ThatItIsShownIsRemembered) {
    Settings().clear();
    window.RestoreSettings();
    EXPECT_FALSE(Panel().IsCheckShown()) << "a first start";
    for (const bool shown : {true, false}) {
        Entry().trigger();
        window.StoreSettings();
        MainWindow next;
        next.RestoreSettings();
        EXPECT_EQ(next.findChild<SizesPanel*>()->IsCheckShown(), shown);
    }
    Settings().clear();
}

}  // namespace
}  // namespace orbelle::app
