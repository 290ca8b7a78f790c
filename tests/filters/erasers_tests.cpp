#include "filters/erasers.h"

#include <gmock/gmock.h>

#include <climits>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using testing::AlphaRow;
using ::testing::ElementsAre;
using testing::FilledPicture;
using testing::SamePixels;

constexpr graphics::Argb kColor = 0xFF336699;

TEST(EraseColor, ClearsTheAlphaOfOnePixel) {
    Bitmap picture = FilledPicture(3, 2, kColor);
    EraseColor(picture, 1, 1);
    EXPECT_EQ(picture.GetPixel(1, 1), graphics::SetAlphaByte(kColor, 0));
    picture.SetPixel(1, 1, kColor);
    EXPECT_TRUE(SamePixels(picture, FilledPicture(3, 2, kColor)));
}

TEST(Erasers, ChangeNothingOutsideThePicture) {
    const Bitmap before = FilledPicture(3, 3, kColor);
    // For the brush's radius of 2 the nearest pixels lie exactly on the rim.
    const int places[][2] = {
        {4, 1}, {1, 4}, {-2, 1}, {1, -2}, {INT_MIN, 1}, {INT_MAX, INT_MIN}, {INT_MAX, 1}};
    for (const auto& [x, y] : places) {
        Bitmap after = before;
        EraseColor(after, x, y);
        EraseTool(after, x, y, 1, 50);
        EXPECT_TRUE(SamePixels(after, before)) << x << ", " << y;
    }
    Bitmap empty;
    EraseColor(empty, 0, 0);
    EraseTool(empty, 0, 0, 100, 50);
    EXPECT_TRUE(empty.IsEmpty());
}

// Radius 2; on the diagonal 255 - (1 - sqrt(2) / 2) x 250 = 181.8.
TEST(EraseTool, FallsFromTheCentreToTheRim) {
    Bitmap picture = FilledPicture(5, 5, kColor);
    EraseTool(picture, 2, 2, 1, 50);
    EXPECT_THAT(AlphaRow(picture, 0), ElementsAre(255, 255, 255, 255, 255));
    EXPECT_THAT(AlphaRow(picture, 1), ElementsAre(255, 182, 130, 182, 255));
    EXPECT_THAT(AlphaRow(picture, 2), ElementsAre(255, 130, 5, 130, 255));
    EXPECT_THAT(AlphaRow(picture, 3), ElementsAre(255, 182, 130, 182, 255));
    EraseTool(picture, 2, 2, 1, 50);
    EXPECT_THAT(AlphaRow(picture, 2), ElementsAre(255, 5, 0, 5, 255));
}

TEST(EraseTool, LeavesThinPicturesAloneAndErasesNothingWithoutStrengthOrSize) {
    const int cases[][4] = {{1, 9, 9, 50}, {9, 1, 9, 50},  {9, 9, 9, 0},
                            {9, 9, 0, 50}, {9, 9, -9, 50}, {9, 9, INT_MIN, 50}};
    for (const auto& [width, height, size, level] : cases) {
        const Bitmap before = FilledPicture(width, height, kColor);
        Bitmap after = before;
        EraseTool(after, 0, 0, size, level);
        EXPECT_TRUE(SamePixels(after, before)) << width << " x " << height << ", " << size;
    }
}

TEST(EraseTool, ALimitlessBrushIsSafe) {
    Bitmap picture = FilledPicture(3, 3, kColor);
    EraseTool(picture, INT_MIN, INT_MAX, INT_MAX, INT_MIN);
    EXPECT_THAT(AlphaRow(picture, 0), ElementsAre(255, 255, 255));
    EraseTool(picture, 1, 1, INT_MAX, INT_MAX);
    EXPECT_THAT(AlphaRow(picture, 0), ElementsAre(0, 0, 0));
}

}  // namespace
}  // namespace orbelle::filters
