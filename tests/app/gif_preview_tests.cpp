#include "app/gif_preview.h"

#include <gtest/gtest.h>

#include "support/pictures.h"

namespace orbelle::app {

using graphics::Bitmap;
using graphics::RectF;
using testing::SamePixels;

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

TEST(GifPreview, DemoShowsTheGifOverTheBackdrop) {
    Bitmap surface(2, 2);
    surface.SetPixel(0, 0, 0x64FF0000);
    surface.SetPixel(1, 1, 0xFF0000FF);
    for (const auto& [threshold, corner] : {std::pair{100, 0xFFFF0000}, {101, 0xFFFFFFFF}}) {
        Bitmap box = FilledPicture(5, 4, 0xFFFFFFFF);
        graphics::DrawingContext context(box);
        context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
        DrawGifPreview(context, surface, 5, 4, static_cast<std::uint8_t>(threshold));
        Bitmap expected = FilledPicture(5, 4, 0xFFFFFFFF);
        expected.SetPixel(1, 1, corner);
        expected.SetPixel(2, 2, 0xFF0000FF);
        EXPECT_TRUE(SamePixels(box, expected)) << threshold;
    }
    graphics::Bitmap box(4, 4);
    graphics::DrawingContext context(box);
    DrawGifPreview(context, Bitmap(), 4, 4, 130);
    EXPECT_TRUE(SamePixels(box, Bitmap(4, 4)));
}

}  // namespace
}  // namespace orbelle::app
