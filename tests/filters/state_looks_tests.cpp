#include "filters/state_looks.h"

#include <gtest/gtest.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using testing::FilledPicture;

TEST(StateLooks, DisabledIsGreyAndATenthDarker) {
    const struct {
        Argb Color, Once, Twice;
    } cases[] = {
        {0xFFFFFFFF, 0xFFE6E6E6, 0xFFCFCFCF},  // 229.5, then 207
        {0x80FF0000, 0x804D4D4D, 0x80454545},  // 76.5, then 69.3
        {0x010000FF, 0x014D4D4D, 0x01454545},  // hardly visible, the same colour
        {0x00FF0000, 0x00000000, 0x00000000},  // colours under alpha 0 are lost
    };
    for (const auto& [color, once, twice] : cases) {
        Bitmap picture = FilledPicture(1, 1, color);
        DisabledStyle(picture, 1, 1);
        EXPECT_EQ(picture.GetPixel(0, 0), once);
        DisabledStyle(picture, 1, 1);
        EXPECT_EQ(picture.GetPixel(0, 0), twice);
    }
}

TEST(StateLooks, TheNewPictureHasTheGivenSize) {
    Bitmap picture = FilledPicture(2, 2, 0x400A80FF);
    HotStyle(picture, 3, 1, 0.65F);  // lightens each channel alone
    EXPECT_EQ(testing::PixelsOf(picture), (std::vector<Argb>{0x401FA3FF, 0x401FA3FF, 0}));
    DisabledStyle(picture, 1, 2);
    EXPECT_EQ(testing::AlphaRow(picture, 0), std::vector{0x40});
    EXPECT_EQ(testing::AlphaRow(picture, 1), std::vector{0});
}

TEST(StateLooks, ARefusedSizeAndAnEmptyPictureChangeNothing) {
    const Bitmap before = FilledPicture(2, 2, 0x80FF0000);
    Bitmap picture = before, empty;
    DisabledStyle(picture, 0, 2);
    HotStyle(picture, 2, -1, 0.5F);
    DisabledStyle(picture, graphics::kMaxBitmapSide + 1, 2);
    EXPECT_TRUE(picture.SharesPixelsWith(before));
    HotStyle(empty, 2, 2, 0.5F);
    EXPECT_TRUE(empty.IsEmpty());
}

}  // namespace
}  // namespace orbelle::filters
