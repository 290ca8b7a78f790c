#include "filters/shrink_to_size.h"

#include <gtest/gtest.h>

#include "support/pictures.h"
#include "support/pixel_runs.h"

namespace orbelle::filters {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF0000FF;

TEST(ShrinkToSize, HasWholePixelsInTheMiddle) {
    const struct {
        int Width, Height, Size;
        const char* Pixels;
    } cases[] = {
        {512, 100, 256, "103-152: 0-255"},
        {24, 16, 16, "2-12: 0-15"},
        {16, 16, 20, "2-17: 2-17"},
        {13, 16, 16, "0-15: 1-13"},
        {512, 1, 16, ""},
        // Ties go to the even number.
        {16, 5, 8, "3-4: 0-7"},
        {16, 7, 8, "2-5: 0-7"},
        {5, 16, 8, "0-7: 3-4"},
    };
    for (const auto& [width, height, size, pixels] : cases)
        EXPECT_EQ(PixelRuns(ShrinkToSize(FilledPicture(width, height, kBlue), size)), pixels)
            << width << " x " << height;
}

TEST(ScaleToSize, SmallPicturesFillTheSquare) {
    const struct {
        int Width, Height, Size;
        const char* Pixels;
    } cases[] = {
        {16, 16, 20, "0-19: 0-19"},
        {16, 8, 64, "16-47: 0-63"},
        {1, 3, 10, "0-9: 3-5"},
        // Where it shrinks it is the same as before.
        {512, 100, 256, "103-152: 0-255"},
        {5, 16, 8, "0-7: 3-4"},
    };
    for (const auto& [width, height, size, pixels] : cases)
        EXPECT_EQ(PixelRuns(ScaleToSize(FilledPicture(width, height, kBlue), size)), pixels)
            << width << " x " << height;
}

TEST(ScaleToSide, KeepsTheShape) {
    const struct {
        int Width, Height, Side, ScaledWidth, ScaledHeight;
    } cases[] = {{64, 48, 128, 128, 96}, {64, 48, 32, 32, 24}, {48, 64, 64, 48, 64},
                 {512, 1, 16, 16, 1},    {3, 2, 1, 1, 1},      {2, 5, 10, 4, 10}};
    for (const auto& [width, height, side, scaledWidth, scaledHeight] : cases) {
        const graphics::Bitmap scaled = ScaleToSide(FilledPicture(width, height, kBlue), side);
        EXPECT_EQ(scaled.Width(), scaledWidth) << width << " x " << height;
        EXPECT_EQ(scaled.Height(), scaledHeight) << width << " x " << height;
        EXPECT_EQ(scaled.GetPixel(scaledWidth - 1, 0), kBlue);
    }
}

}  // namespace
}  // namespace orbelle::filters
