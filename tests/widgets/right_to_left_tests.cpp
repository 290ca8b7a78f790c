// Where words go from right to left, parts stand mirrored and are hit where they are seen.
#include <gtest/gtest.h>

#include "support/hands.h"
#include "widgets/button_bar.h"
#include "widgets/layer_list.h"
#include "widgets/number_slider.h"
#include "widgets/size_strip.h"
#include "widgets/track_slider.h"

namespace orbelle::widgets {
namespace {

using namespace orbelle::testing;

QImage Picture(int side) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    return picture;
}

template <typename Control>
void Show(Control& control, const QSize& size) {
    control.setLayoutDirection(Qt::RightToLeft);
    control.resize(size);
    control.show();
}

// Faces of 24 with 4 around them and 2 between two.
TEST(RightToLeftTest, BarsBeginAtTheRight) {
    ButtonBar bar({.Buttons = {{}, {}, {.IsSeparator = true}, {}}});
    QWidget beside;
    beside.setFixedSize(30, 10);
    bar.PutBeside(2, beside);
    std::vector<int> clicks;
    QObject::connect(&bar, &ButtonBar::Clicked, [&](int button) { clicks.push_back(button); });
    Show(bar, {200, 32});
    EXPECT_EQ(bar.ButtonRect(1), QRect(172, 4, 24, 24));
    EXPECT_EQ(bar.ButtonRect(2), QRect(146, 4, 24, 24));
    EXPECT_EQ(beside.x(), 114);
    Click(bar, {150, 16});
    bar.setFocus();
    Strike(bar, Qt::Key_Left);
    Strike(bar, Qt::Key_Space);
    Strike(bar, Qt::Key_Left);
    Strike(bar, Qt::Key_Space);
    EXPECT_EQ(clicks, (std::vector{2, 1, 2}));
}

TEST(RightToLeftTest, SlidersGrowToTheLeft) {
    TrackSlider slider;
    slider.setRange(0, 100);
    Show(slider, {110, 20});
    Press(slider, {29, 10});  // 80 from the right end, 75 from where the thumb's middle is at 0
    Release(slider, {29, 10});
    EXPECT_EQ(slider.value(), 75);
    Strike(slider, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 76);

    NumberSlider number;
    number.SetRange(0, 100);
    Show(number, number.sizeHint());
    Click(number, {number.height() * 0.9, 4.0});  // the upper arrow, beside the one that opens
    EXPECT_EQ(number.Value(), 1);
}

TEST(RightToLeftTest, EyesOfLayersAreAtTheLeft) {
    LayerList list;
    list.SetRows({{Picture(16), {16, 16}, ".50"}, {Picture(16), {16, 16}, ".50"}});
    std::vector<int> eyes;
    QObject::connect(&list, &LayerList::EyePressed, [&](int layer) { eyes.push_back(layer); });
    Show(list, {200, 120});
    Click(*list.viewport(), {16, 20});
    Click(*list.viewport(), {184, 60});
    EXPECT_EQ(eyes, std::vector{1});
    EXPECT_EQ(list.SelectedIndex(), 0);
}

TEST(RightToLeftTest, TheStripBeginsAtTheRight) {
    SizeStrip strip;
    strip.SetCells({{64, Picture(64), false, ""}, {16, Picture(16), false, ""}});
    Show(strip, {400, strip.sizeHint().height()});
    EXPECT_GT(strip.CellPlace(64).left(), strip.CellPlace(16).right());
    EXPECT_GT(strip.CellPlace(64).right(), 380);
    strip.setFocus();
    std::vector<int> sizes;
    QObject::connect(&strip, &SizeStrip::Clicked, [&](int size) { sizes.push_back(size); });
    Strike(strip, Qt::Key_Home);
    Strike(strip, Qt::Key_Left);
    Strike(strip, Qt::Key_Return);
    EXPECT_EQ(sizes, std::vector{16});
}

}  // namespace
}  // namespace orbelle::widgets
