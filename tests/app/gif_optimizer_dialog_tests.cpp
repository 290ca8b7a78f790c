#include "app/gif_optimizer_dialog.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>

#include "app/settings.h"
#include "support/hands.h"
#include "support/pictures.h"

namespace orbelle::app {
namespace {

class GifOptimizerDialogTest : public ::testing::Test {
protected:
    GifOptimizerDialogTest() { Settings().remove("Optimize"); }

    static void Type(const GifOptimizerDialog& optimizer, const QString& digits) {
        auto& field = *optimizer.findChild<QLineEdit*>();
        field.selectAll();
        for (const QChar digit : digits)
            testing::Strike(field, Qt::Key(digit.unicode()), digit);
    }

    const graphics::Bitmap surface = testing::FilledPicture(20, 10, 0x80FF0000);
};

TEST_F(GifOptimizerDialogTest, StartsAt130AndRemembersTheValueEvenWhenCancelled) {
    {
        GifOptimizerDialog optimizer(surface, nullptr);
        EXPECT_EQ(optimizer.OptimizeValue(), 130);
        Type(optimizer, "42");
        optimizer.reject();
    }
    EXPECT_EQ(GifOptimizerDialog(surface, nullptr).OptimizeValue(), 42);
    Settings().setValue("Optimize", 0);
    EXPECT_EQ(GifOptimizerDialog(surface, nullptr).OptimizeValue(), 130);
}

TEST_F(GifOptimizerDialogTest, MoreThanTheSlidersTrackCanBeTyped) {
    GifOptimizerDialog optimizer(surface, nullptr);
    Type(optimizer, "180");
    EXPECT_EQ(optimizer.OptimizeValue(), 180);
    Type(optimizer, "250");
    EXPECT_EQ(optimizer.OptimizeValue(), 200);
}

// The middle of the result: red while alpha 128 reaches the value, else the white of the box.
TEST_F(GifOptimizerDialogTest, TheResultFollowsTheValue) {
    GifOptimizerDialog optimizer(surface, nullptr);
    const auto middle = [&] {
        const QImage result = optimizer.findChild<QLabel*>("Result")->pixmap().toImage();
        return result.pixelColor(result.width() / 2, result.height() / 2);
    };
    Type(optimizer, "128");
    EXPECT_EQ(middle(), QColor(255, 0, 0));
    Type(optimizer, "129");
    EXPECT_NE(middle(), QColor(255, 0, 0));
}

}  // namespace
}  // namespace orbelle::app
