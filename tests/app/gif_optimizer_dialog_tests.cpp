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

// Red while alpha 128 reaches the value, else the white of the box.
TEST_F(GifOptimizerDialogTest, TheResultFollowsTheValue) {
    GifOptimizerDialog optimizer(surface, nullptr);
    const auto red = [&] {
        const QImage result = optimizer.findChild<QLabel*>("Result")->pixmap().toImage();
        QRect place;
        for (int y = 0; y < result.height(); ++y)
            for (int x = 0; x < result.width(); ++x)
                if (result.pixelColor(x, y) == QColor(255, 0, 0))
                    place |= QRect(x, y, 1, 1);
        return place;
    };
    Type(optimizer, "128");
    EXPECT_EQ(red(), QRect(118, 123, 20, 10));
    Type(optimizer, "129");
    EXPECT_EQ(red(), QRect());
}

}  // namespace
}  // namespace orbelle::app
