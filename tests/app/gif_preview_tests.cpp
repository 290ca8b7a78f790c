#include "app/gif_preview.h"

#include <gtest/gtest.h>

namespace orbelle::app {

using graphics::Bitmap;
using graphics::RectF;

namespace {

TEST(GifPreview, PicturesAreCentredAndEachAxisIsLimitedOnItsOwn) {
    const struct {
        int Width, Height, BoxWidth, BoxHeight;
        RectF Place;
    } cases[] = {
        {10, 10, 21, 30, {5, 10, 10, 10}},
        {40, 10, 20, 15, {0, 2, 20, 10}},
        {40, 50, 20, 15, {0, 0, 20, 15}},
    };
    for (const auto& [width, height, boxWidth, boxHeight, place] : cases)
        EXPECT_EQ(PreviewRect(Bitmap(width, height), boxWidth, boxHeight), place);
}

}  // namespace
}  // namespace orbelle::app
