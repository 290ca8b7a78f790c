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

}  // namespace
}  // namespace orbelle::filters
