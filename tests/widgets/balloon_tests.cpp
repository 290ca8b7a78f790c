// Where balloons stand, how they look, and that they can be clicked.
#include "widgets/balloon.h"

#include <gtest/gtest.h>

#include "support/hands.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;
using enum BalloonSide;

// In a window of 400 x 300 a balloon of 100 x 40, whose arrow is 10 long.
TEST(BalloonPlaceTest, IsBesideTheTargetInsideTheWindowAndKeepsOffWhatItCan) {
    const struct {
        const char* About;
        QRect Target;
        std::vector<BalloonSide> Sides;
        std::vector<QRect> KeepOff;
        BalloonSide Side;
        QPoint Body;
        QPoint Tip;
    } cases[] = {
        {"centred below", {150, 50, 60, 20}, {Below, Above}, {}, Below, {130, 80}, {180, 70}},
        {"centred above", {150, 50, 60, 20}, {Above}, {}, Above, {130, 0}, {180, 50}},
        {"beside", {150, 50, 60, 20}, {Right}, {}, Right, {220, 40}, {210, 60}},
        {"on the other side", {150, 50, 60, 20}, {Left}, {}, Left, {40, 40}, {150, 60}},
        {"in the corner the arrow alone moves",
         {4, 0, 60, 20},
         {Below},
         {},
         Below,
         {0, 30},
         {34, 20}},
        {"no room above", {150, 30, 60, 20}, {Above, Below}, {}, Below, {130, 60}, {180, 50}},
        {"no room on any wanted side",
         {0, 100, 350, 20},
         {Right},
         {},
         Below,
         {125, 130},
         {175, 120}},
        {"something lies below",
         {150, 50, 60, 20},
         {Below, Right},
         {{0, 75, 400, 50}},
         Right,
         {220, 31},
         {210, 57}},
        {"it slides along the edge",
         {150, 50, 60, 20},
         {Below},
         {{190, 75, 100, 50}},
         Below,
         {86, 80},
         {172, 70}},
        {"what holds the target is no hindrance",
         {150, 50, 60, 20},
         {Below, Right},
         {{0, 0, 400, 120}},
         Below,
         {130, 80},
         {180, 70}},
        {"a longer arrow crosses a scroll bar",
         {100, 0, 100, 300},
         {Right},
         {{200, 0, 16, 300}},
         Right,
         {220, 130},
         {200, 150}},
        {"where all is covered it stays in the middle",
         {0, 40, 200, 260},
         {Right},
         {{0, 0, 400, 37}, {200, 40, 200, 260}},
         Right,
         {210, 150},
         {200, 170}},
    };
    const QRect window(0, 0, 400, 300);
    for (const auto& c : cases) {
        const auto place = PlaceBalloon({c.Target, {100, 40}, window, c.KeepOff, c.Sides});
        ASSERT_TRUE(place) << c.About;
        EXPECT_EQ(place->Side, c.Side) << c.About;
        EXPECT_EQ(place->Body, QRect(c.Body, QSize(100, 40))) << c.About;
        EXPECT_EQ(place->Tip, c.Tip) << c.About;
    }
    EXPECT_FALSE(PlaceBalloon({window, {100, 40}, window, {}, {Right}})) << "no room at all";
}

TEST(BalloonTest, FollowsItsTextAndDrawsTheArrowToItsTip) {
    Balloon balloon;
    QSize size;
    for (const char* text :
         {"One.", "Two\nlines.",
          "Not satisfied with the current results? Undo restores, and Redo repeats."}) {
        balloon.SetText(text);
        EXPECT_GT(balloon.BodySize().height(), size.height()) << text;
        size = balloon.BodySize();
        EXPECT_LE(size.width(), 200) << text;
    }
    const QRect target(200, 200, 40, 40);
    for (const BalloonSide side : {Below, Above, Right, Left}) {
        const auto place = PlaceBalloon({target, size, {0, 0, 500, 500}, {}, {side}});
        ASSERT_TRUE(place && place->Side == side);
        balloon.Stand(*place);
        EXPECT_FALSE(balloon.geometry().intersects(target));
        const QImage picture = balloon.grab().toImage();
        const QPoint tip = place->Tip - balloon.pos();
        const QPoint inward = (picture.rect().center() - tip) / 20;
        const QPoint beside = side == Below || side == Above ? QPoint(12, 0) : QPoint(0, 12);
        EXPECT_NE(picture.pixel(tip + inward), picture.pixel(tip + inward + beside))
            << static_cast<int>(side);
    }
}

TEST(BalloonTest, ComesUpAboveItsSiblingsAndTellsOfAClick) {
    QWidget window;
    window.resize(300, 200);
    Balloon balloon(&window);
    balloon.SetText("Click here.");
    balloon.Stand({QRect({20, 20}, balloon.BodySize()), Below, {40, 0}, 20});
    QWidget later(&window);
    later.resize(300, 200);
    window.show();
    balloon.hide();
    later.raise();
    balloon.show();
    EXPECT_EQ(window.childAt(50, 30), &balloon);
    EXPECT_EQ(window.childAt(40, 12), &balloon);
    EXPECT_EQ(window.childAt(60, 12), &later) << "beside the arrow";

    int clicks = 0;
    QObject::connect(&balloon, &Balloon::Clicked, [&] { ++clicks; });
    Click(balloon, {30, 30});
    EXPECT_EQ(clicks, 1);
    Press(balloon, {30, 30});
    Release(balloon, {-5, 20});
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace orbelle::widgets
