#include "filters/gloss_styles.h"

#include <gmock/gmock.h>

#include <map>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::MakeARGB;
using testing::FilledPicture;

// The body of a 90 x 90 square is (-1, 0, 90, 90), the ellipse's box (-46, 30, 270, 90). In column
// -1 the ellipse begins at 75 - 45 sqrt(1 - (90 / 135)^2) = 41.46, so the cap is 42 rows high.
TEST(CrystalStyle, OnAnOpaqueSquareIsACapOf42Rows) {
    const auto gloss = CrystalStyle(FilledPicture(90, 90, 0xFF204060));
    ASSERT_TRUE(gloss);
    EXPECT_EQ(gloss->X, -1);
    EXPECT_EQ(gloss->Y, 0);
    EXPECT_EQ(gloss->Width, 90);
    EXPECT_EQ(gloss->Height, 42);
    EXPECT_EQ(gloss->Image.Width(), 90);
    EXPECT_EQ(gloss->Image.Height(), 42);
}

// The gloss is drawn 88 / 90 in size from (2, 1) on: row y shows (y - 1) x 90 / 88 of the gradient,
// whose rows 0, 1, 2 have alpha 198, 194, 189.
TEST(CrystalStyle, FadesFromTheTopAndStaysAPixelInsideTheEdge) {
    const auto gloss = CrystalStyle(FilledPicture(90, 90, 0xFF204060));
    ASSERT_TRUE(gloss);
    for (int x = 0; x < 90; ++x)
        EXPECT_EQ(gloss->Image.GetPixel(x, 0), 0U) << x;
    for (int y = 0; y < 42; ++y)
        EXPECT_EQ(gloss->Image.GetPixel(1, y), 0U) << y;
    for (const auto& [row, alpha] : std::map<int, unsigned>{{1, 198}, {2, 194}, {3, 189}})
        for (const int x : {2, 40, 88})
            EXPECT_EQ(gloss->Image.GetPixel(x, row), MakeARGB(alpha, 255, 255, 255))
                << x << ", " << row;
    // The ellipse takes the middle away below row 30, not the left end.
    EXPECT_EQ(gloss->Image.GetPixel(85, 36), 0U);
    EXPECT_NE(gloss->Image.GetPixel(3, 36), 0U);
}

TEST(CrystalStyle, WithoutASolidBodyThereIsNoGloss) {
    EXPECT_FALSE(CrystalStyle(FilledPicture(20, 20, 0x95FFFFFF)));
    EXPECT_FALSE(CrystalStyle(graphics::Bitmap()));
    EXPECT_TRUE(CrystalStyle(FilledPicture(1, 1, 0x96FFFFFF)));
}

}  // namespace
}  // namespace orbelle::filters
