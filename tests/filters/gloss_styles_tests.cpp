#include "filters/gloss_styles.h"

#include <gmock/gmock.h>

#include <map>
#include <tuple>

#include "filters/round_shape.h"
#include "support/pictures.h"
#include "support/pixel_runs.h"

namespace orbelle::filters {
namespace {

using graphics::MakeArgb;
using graphics::RectF;
using testing::FilledPicture;

// The body of a 90 x 90 square is (-1, 0, 90, 90), the ellipse's box (-46, 30, 270, 90). In column
// -1 the ellipse begins at 75 - 45 sqrt(1 - (90 / 135)^2) = 41.46, so the cap is 42 rows high.
// The gloss is drawn 88 / 90 in size from (2, 1) on: row y shows (y - 1) x 90 / 88 of the gradient,
// whose rows 0, 1, 2 have alpha 198, 194, 189.
TEST(CrystalStyle, IsACapThatFadesFromTheTopAPixelInsideTheEdge) {
    const auto gloss = CrystalStyle(FilledPicture(90, 90, 0xFF204060));
    ASSERT_TRUE(gloss);
    EXPECT_EQ(std::tuple(gloss->X, gloss->Y, gloss->Width, gloss->Height),
              std::tuple(-1, 0, 90, 42));
    EXPECT_EQ(std::pair(gloss->Image.Width(), gloss->Image.Height()), std::pair(90, 42));
    for (int x = 0; x < 90; ++x)
        EXPECT_EQ(gloss->Image.GetPixel(x, 0), 0U) << x;
    for (int y = 0; y < 42; ++y)
        EXPECT_EQ(gloss->Image.GetPixel(1, y), 0U) << y;
    for (const auto& [row, alpha] : std::map<int, unsigned>{{1, 198}, {2, 194}, {3, 189}})
        for (const int x : {2, 40, 88})
            EXPECT_EQ(gloss->Image.GetPixel(x, row), MakeArgb(alpha, 255, 255, 255))
                << x << ", " << row;
    // The ellipse takes the middle away below row 30, not the left end.
    EXPECT_EQ(gloss->Image.GetPixel(85, 36), 0U);
    EXPECT_NE(gloss->Image.GetPixel(3, 36), 0U);
    // Half of 7 is 3: 75 - 45 sqrt(1 - (7.5 / 10.5)^2) = 43.5.
    EXPECT_EQ(CrystalStyle(FilledPicture(7, 90, 0xFF204060))->Height, 44);
}

TEST(CrystalStyle, WithoutASolidBodyThereIsNoGloss) {
    EXPECT_FALSE(CrystalStyle(FilledPicture(20, 20, 0x95FFFFFF)));
    EXPECT_FALSE(CrystalStyle(graphics::Bitmap()));
    EXPECT_TRUE(CrystalStyle(FilledPicture(1, 1, 0x96FFFFFF)));
}

// The body of a 20 x 10 picture is (-1, 0, 20, 10); the fold is at column -1 + 10 or row 5.
TEST(OrigamiStyle, LeavesTheLeftOrTheUpperHalfOfTheBody) {
    const auto picture = FilledPicture(20, 10, 0xFF000000);
    const auto left = OrigamiStyle(picture, Fold::Horizontal, 0x0F336699, 0x00336699);
    ASSERT_TRUE(left);
    EXPECT_EQ(std::tuple(left->X, left->Width, left->Height), std::tuple(-1, 10, 10));
    // Column x stands for x - 1 in the source: t = (x - 1 + 0.5 + 1) / 10, alpha 15 t.
    EXPECT_EQ(left->Image.GetPixel(0, 5), 0U);
    EXPECT_EQ(left->Image.GetPixel(1, 5), MakeArgb(2, 0x33, 0x66, 0x99));
    EXPECT_EQ(left->Image.GetPixel(9, 0), MakeArgb(14, 0x33, 0x66, 0x99));

    const auto upper = OrigamiStyle(picture, Fold::Vertical, 0x0F336699, 0x00336699);
    ASSERT_TRUE(upper);
    EXPECT_EQ(std::pair(upper->Width, upper->Height), std::pair(20, 5));
    EXPECT_EQ(upper->Image.GetPixel(7, 4), MakeArgb(14, 0x33, 0x66, 0x99));  // 15 x 0.9
    EXPECT_EQ(upper->Image.GetPixel(19, 2), MakeArgb(8, 0x33, 0x66, 0x99));  // 15 x 0.5

    EXPECT_FALSE(OrigamiStyle(graphics::Bitmap(4, 4), Fold::Vertical, 0, 0));
    EXPECT_TRUE(
        OrigamiStyle(FilledPicture(1, 1, 0xFF000000), Fold::Horizontal, 0, 0)->Image.IsEmpty());
}

TEST(IosStyle, IsARoundedPlateInTheColor) {
    const Plate plate = IosStyle(0x80FF0000, 24, 24, 0, 0);
    EXPECT_EQ(PixelRuns(plate.Image), "0: 2-21; 1: 1-22; 2-21: 0-23; 22: 1-22; 23: 2-21");
    EXPECT_EQ(plate.Image.GetPixel(0, 12), 0x80FF0000);
    EXPECT_EQ(plate.Path.WorldBounds(), (RectF{0, 0, 24, 24}));
}

TEST(RoundShape, SidesShorterThanTwoRadiiAreOvershot) {
    EXPECT_EQ(RoundShape(1, 2, 30, 20, 6).WorldBounds(), (RectF{1, 2, 30, 20}));
    EXPECT_EQ(RoundShape(1, 2, 4, 20, 6).WorldBounds(), (RectF{1, 2, 12, 20}));
    EXPECT_EQ(RoundShape(0, 0, 7, 5, 0).WorldBounds(), (RectF{0, 0, 7, 5}));
}

}  // namespace
}  // namespace orbelle::filters
