// Tips in the window: beside what they stand, that they follow it, and how they close.
#include <QToolButton>

#include "app/bottom_panel.h"
#include "editing/buttons.h"
#include "editing/tips.h"
#include "editing/view_commands.h"
#include "main_window_fixture.h"
#include "widgets/balloon.h"
#include "widgets/panel_header.h"

namespace orbelle::app {
namespace {

namespace tips = editing::tips;
using editing::Tool;

class TipsTest : public MainWindowTest {
protected:
    TipsTest() { window.SetTipsEnabled(true); }

    void Tell(int tip, bool aboutLayers = false) {
        window.Run([=](editing::Editor& editor) { editor.Changed.Tip = {tip, aboutLayers}; });
        // Panels that a tool has opened are laid out; the balloons follow.
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    void Use(Tool tool) {
        window.Run([tool](editing::Editor& editor) { editor.Tools.InUse = tool; });
        Tell(tips::OtherTool);
    }

    widgets::Balloon& Balloon(bool isSecond = false) {
        return Part<widgets::Balloon>(isSecond ? "SecondBalloon" : "FirstBalloon");
    }
    QRect PlaceOf(const QWidget& widget, const QRect& part) {
        return part.translated(widget.mapTo(window.centralWidget(), QPoint(0, 0)));
    }
    QRect PlaceOf(const QWidget& widget) { return PlaceOf(widget, widget.rect()); }
    QRect Button(const char* bar, int number) {
        const auto& buttons = Part<ButtonBar>(bar);
        return PlaceOf(buttons, buttons.ButtonRect(number));
    }
    QRect PageOnScene() {
        const document::View& view = window.Editor().View;
        return PlaceOf(Scene(), QRect(PageOffsetX(Page(), view), PageOffsetY(Page(), view),
                                      static_cast<int>(Page().Width * view.Zoom),
                                      static_cast<int>(Page().Height * view.Zoom)));
    }
    // Beside, with nothing but an arrow's length between.
    static bool Touches(const QRect& balloon, const QRect& target) {
        return !balloon.intersects(target) && balloon.adjusted(-3, -3, 3, 3).intersects(target);
    }
};

TEST_F(TipsTest, StandBesideWhatTheyAreAbout) {
    using namespace editing;
    for (const int side : {16, 64, 256, 512}) {
        SCOPED_TRACE(side);
        NewPage(side, side);
        const std::pair<int, QRect> cases[] = {
            {tips::Welcome,
             Button("MainBar", main_buttons::New) | Button("MainBar", main_buttons::Open)},
            {tips::NewOrOpened, Button("MainBar", main_buttons::Import)},
            {tips::Adjusted,
             Button("MainBar", main_buttons::Undo) | Button("MainBar", main_buttons::Redo)},
            {tips::MoveTool, PageOnScene()},
            {tips::NothingToMove, PageOnScene()},
            {tips::Ios, Button("ToolBox", tool_buttons::Rectangle)}};
        for (const auto& [tip, target] : cases) {
            Tell(tip);
            EXPECT_TRUE(Balloon().isVisible()) << tip;
            EXPECT_TRUE(Touches(Balloon().geometry(), target)) << tip;
            EXPECT_TRUE(window.centralWidget()->rect().contains(Balloon().geometry())) << tip;
        }
        Tell(tips::Imported, true);
        EXPECT_TRUE(Touches(Balloon(true).geometry(), Button("LayerBar", layer_buttons::Add)));
        EXPECT_FALSE(Balloon().geometry().intersects(Balloon(true).geometry()));
    }
}

TEST_F(TipsTest, OfToolsLeaveTheWellsAndTheBrushThatTheyNameFree) {
    NewPage(512, 512);
    Part<BottomPanel>("BottomTips").SetOpen(false);
    Use(Tool::Pencil);
    EXPECT_FALSE(Balloon(true).isVisible()) << "there is nothing to point at in a folded panel";
    EXPECT_TRUE(Balloon().isVisible());
    Part<BottomPanel>("BottomTips").SetOpen(true);
    ASSERT_TRUE(WaitUntil([&] { return Balloon(true).isVisible(); }));
    QRect wells;
    for (const char* name : {"ForeColorOLE0", "ForeColorOLE1"})
        wells |= PlaceOf(Part<QWidget>(name));
    const QRect place = Balloon(true).geometry();
    EXPECT_TRUE(place.bottom() < wells.top() && wells.top() - place.bottom() < 30);
    EXPECT_TRUE(wells.left() < place.center().x() && place.center().x() < wells.right());
    EXPECT_FALSE(Balloon().geometry().intersects(wells));

    Use(Tool::BrushEraser);
    const auto& brush = Part<QWidget>("BrushPanel");
    EXPECT_TRUE(WaitUntil(
        [&] { return brush.y() == 0 && Touches(Balloon(true).geometry(), PlaceOf(brush)); }));
}

TEST_F(TipsTest, FollowTheirTargetsAndHideWithThem) {
    NewPage(64, 64);
    Tell(tips::MoveTool);
    const QPoint before = Balloon().pos();
    window.resize(1200, 800);
    EXPECT_TRUE(WaitUntil(
        [&] { return Balloon().pos() != before && Touches(Balloon().geometry(), PageOnScene()); }));
    Tell(tips::Imported, true);
    EXPECT_TRUE(Balloon(true).isVisible());
    Part<widgets::PanelHeader>("LayerPanel").Clicked(true);
    EXPECT_TRUE(WaitUntil([&] { return !Balloon(true).isVisible(); }));
}

TEST_F(TipsTest, ShowOnlyWhenTheyAreOnAndHaveAText) {
    window.SetTipsEnabled(false);
    NewPage(64, 64);
    EXPECT_FALSE(Balloon().isVisible());
    window.SetTipsEnabled(true);
    // Has no text of its own, and there was none before.
    Use(Tool::SelectEllipse);
    EXPECT_FALSE(Balloon().isVisible() || Balloon(true).isVisible());
    Tell(tips::Adjusted);
    EXPECT_TRUE(Balloon().isVisible());
}

TEST_F(TipsTest, CloseTheSecondToAfterATapOnThePage) {
    NewPage(64, 64);
    Part<BottomPanel>("BottomTips").SetOpen(true);
    Use(Tool::Pencil);
    ASSERT_TRUE(WaitUntil([&] { return Balloon(true).isVisible(); }));
    Click(Scene(), {5, 5});
    EXPECT_TRUE(WaitUntil([&] { return !Balloon(true).isVisible(); }));
}

TEST_F(TipsTest, TheTabThatTurnsThemOffStandsClearOfBalloonsAndScrollBar) {
    NewPage(64, 64);
    auto& panel = Part<BottomPanel>("BottomTips");
    panel.SetOpen(true);
    Use(Tool::Pencil);
    ASSERT_TRUE(WaitUntil([&] { return Balloon(true).isVisible(); }));
    auto& tab = Part<QWidget>("BottomCloseTips");
    Click(Balloon(), {40, 20});
    const auto isUp = [&](int floor) { return tab.geometry().bottom() + 1 == floor; };
    EXPECT_TRUE(WaitUntil([&] { return isUp(PlaceOf(Part<QWidget>("SizesPanel")).top()); }));
    EXPECT_FALSE(tab.geometry().intersects(Balloon(true).geometry()));

    for (int i = 0; i < 12; ++i)
        window.Run(editing::ZoomIn);
    QScrollBar& bar = Bar(Qt::Horizontal);
    EXPECT_TRUE(WaitUntil([&] { return bar.isVisible() && isUp(PlaceOf(bar).top()); }));

    Click(Part<QToolButton>("CloseTips"), {5, 5});
    EXPECT_FALSE(tab.isVisible());
}

}  // namespace
}  // namespace orbelle::app
