#include "app/frm_gif.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSlider>
#include <QSpinBox>

#include "app/settings.h"
#include "support/pictures.h"

namespace orbelle::app {
namespace {

class FrmGIFTest : public ::testing::Test {
protected:
    FrmGIFTest() { Settings().remove("Optimize"); }

    const graphics::Bitmap surface = testing::FilledPicture(20, 10, 0x80FF0000);
};

TEST_F(FrmGIFTest, StartsAt130AndRemembersTheValueEvenWhenCancelled) {
    {
        FrmGIF optimizer(surface, nullptr);
        EXPECT_EQ(optimizer.OptimizeValue(), 130);
        optimizer.findChild<QSpinBox*>()->setValue(42);
        optimizer.reject();
    }
    EXPECT_EQ(FrmGIF(surface, nullptr).OptimizeValue(), 42);
    Settings().setValue("Optimize", 0);
    EXPECT_EQ(FrmGIF(surface, nullptr).OptimizeValue(), 130);
}

TEST_F(FrmGIFTest, MoreThanTheSlidersTrackCanBeTyped) {
    FrmGIF optimizer(surface, nullptr);
    auto* slider = optimizer.findChild<QSlider*>();
    auto* value = optimizer.findChild<QSpinBox*>();
    value->setValue(250);
    EXPECT_EQ(optimizer.OptimizeValue(), 200);
    EXPECT_EQ(slider->value(), 150);
    slider->setValue(60);
    EXPECT_EQ(optimizer.OptimizeValue(), 60);
}

// The middle of the result: red while alpha 128 reaches the value, else the white of the box.
TEST_F(FrmGIFTest, TheResultFollowsTheValue) {
    FrmGIF optimizer(surface, nullptr);
    const auto middle = [&] {
        const QImage result = optimizer.findChild<QLabel*>("Result")->pixmap().toImage();
        return result.pixelColor(result.width() / 2, result.height() / 2);
    };
    auto* value = optimizer.findChild<QSpinBox*>();
    value->setValue(128);
    EXPECT_EQ(middle(), QColor(255, 0, 0));
    value->setValue(129);
    EXPECT_NE(middle(), QColor(255, 0, 0));
}

}  // namespace
}  // namespace orbelle::app
