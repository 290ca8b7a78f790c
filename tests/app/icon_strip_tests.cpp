#include "app/icon_strip.h"

#include <gtest/gtest.h>

namespace orbelle::app {
namespace {

using graphics::PointF;
using graphics::RectI;

constexpr int kHeight = 200;

IconImageStrip StripOf(std::vector<std::pair<int, int>> sizes) {
    std::vector<formats::IconEntryImage> images;
    for (const auto& [width, height] : sizes)
        images.push_back({width, height, 32, graphics::Bitmap(width, height)});
    return IconImageStrip(std::move(images));
}

TEST(IconStrip, CellsStandInARowWithPicturesAndCaptions) {
    const IconImageStrip strip = StripOf({{48, 48}, {256, 256}, {200, 25}, {99, 100}});
    EXPECT_EQ(strip.Width(), 400);
    EXPECT_EQ(strip.Cell(2, kHeight), (RectI{200, 0, 100, kHeight}));
    EXPECT_EQ(strip.Thumbnail(0, kHeight), (RectI{26, 66, 48, 48}));
    EXPECT_EQ(strip.Thumbnail(1, kHeight), (RectI{100, 40, 100, 100}));
    EXPECT_EQ(strip.Thumbnail(2, kHeight), (RectI{200, 84, 100, 12}));
    EXPECT_EQ(strip.Caption(3), "99x100");
    EXPECT_EQ(strip.CaptionPlace(0, kHeight), (PointF{25, 180}));
    EXPECT_EQ(strip.CaptionPlace(1, kHeight), (PointF{118, 180}));
    EXPECT_EQ(strip.CaptionPlace(3, kHeight), (PointF{325, 180}));
}

}  // namespace
}  // namespace orbelle::app
