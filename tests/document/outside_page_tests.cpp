#include "document/outside_page.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/pictures.h"

namespace orbelle::document {
namespace {

using graphics::RectF;
using testing::PictureOf;

IconLayer LayerOf(const graphics::Bitmap& image, const RectF& rect) {
    IconLayer layer;
    layer.Image = image;
    layer.ImageWidth = image.Width();
    layer.ImageHeight = image.Height();
    layer.Rect = rect;
    return layer;
}

Page PageOf(std::vector<IconLayer> layers) {
    return {.Layers = std::move(layers), .Width = 8, .Height = 6};
}

// One pixel in each corner, and none between them.
const graphics::Bitmap kCorners = PictureOf({"#..#", "....", "#..#"});
// One pixel in the middle of 5 x 3.
const graphics::Bitmap kDot = PictureOf({".....", "..#..", "....."});

TEST(OutsidePage, VisiblePixelsCountNotThePicturesBox) {
    const auto isOutside = [](const graphics::Bitmap& image, RectF rect) {
        return ShowsOutside(PageOf({LayerOf(image, rect)}));
    };
    EXPECT_FALSE(isOutside(kCorners, {0, 0, 4, 3}));
    EXPECT_FALSE(isOutside(kCorners, {4, 3, 4, 3}));
    EXPECT_TRUE(isOutside(kCorners, {5, 3, 4, 3}));
    EXPECT_TRUE(isOutside(kCorners, {4, 4, 4, 3}));
    EXPECT_TRUE(isOutside(kCorners, {-1, 0, 4, 3}));
    EXPECT_TRUE(isOutside(kCorners, {0, -1, 4, 3}));
    EXPECT_FALSE(isOutside(kCorners, {-0.9F, 0, 4, 3})) << "places are cut toward zero";
    EXPECT_FALSE(isOutside(kDot, {-2, -1, 5, 3}));
    EXPECT_FALSE(isOutside(kDot, {5, 4, 5, 3}));
    EXPECT_TRUE(isOutside(kDot, {-3, -1, 5, 3}));
    EXPECT_TRUE(isOutside(kDot, {-2, 5, 5, 3}));
    EXPECT_TRUE(isOutside(kDot, {1e9F, -1e9F, 5, 3})) << "not on the page at all";
    EXPECT_FALSE(isOutside({}, {-5, -5, 5, 3}));
}

TEST(OutsidePage, AScaledPictureIsMeasuredOnThePage) {
    const auto isOutside = [](RectF rect) { return ShowsOutside(PageOf({LayerOf(kDot, rect)})); };
    // Doubled the dot fills columns 4 and 5, rows 2 and 3.
    EXPECT_FALSE(isOutside({-4, -2, 10, 6}));
    EXPECT_TRUE(isOutside({-5, -2, 10, 6}));
    EXPECT_FALSE(isOutside({2, 2, 10, 6}));
    EXPECT_TRUE(isOutside({2, 3, 10, 6}));
    EXPECT_TRUE(isOutside({-1e9F, -1e9F, 1e9F, 1e9F}));
    EXPECT_FALSE(isOutside({0, 0, -5, 3})) << "nothing is drawn";
    // Only the part of the picture that is drawn counts.
    Page page = PageOf({LayerOf(kDot, {-1, 0, 2, 3})});
    page.Layers[0].ImageWidth = 2;
    EXPECT_FALSE(ShowsOutside(page));
    for (const int width : {std::numeric_limits<int>::max(), 0, std::numeric_limits<int>::min()}) {
        page.Layers[0].ImageWidth = width;
        EXPECT_FALSE(ShowsOutside(page)) << width;
    }
}

TEST(OutsidePage, OnlyWhatASeenLayerLeavesCounts) {
    Page page = PageOf({LayerOf(PictureOf({"#"}, 0x02000000), {-1, 0, 1, 1})});
    IconLayer& layer = page.Layers[0];
    EXPECT_TRUE(ShowsOutside(page));
    layer.Visible = false;
    EXPECT_FALSE(ShowsOutside(page));
    layer.Visible = true;
    layer.Opacity = 0;
    EXPECT_FALSE(ShowsOutside(page));
    layer.Opacity = 0.1F;
    EXPECT_FALSE(ShowsOutside(page)) << "a tenth of 2 is nothing";
    layer.Opacity = 0.5F;
    EXPECT_TRUE(ShowsOutside(page));
}

TEST(OutsidePage, APlateCutsTheLayersAboveIt) {
    const graphics::Bitmap wide = testing::FilledPicture(20, 6, 0xFF000000);
    IconLayer plate = LayerOf(testing::FilledPicture(8, 6, 0xFFFFFFFF), {0, 0, 8, 6});
    plate.ClipNextLayer = true;
    const IconLayer over = LayerOf(wide, {-6, 0, 20, 6});
    EXPECT_FALSE(ShowsOutside(PageOf({plate, over, over})));
    EXPECT_TRUE(ShowsOutside(PageOf({over, plate})));
    plate.ClipNextLayer = false;
    EXPECT_TRUE(ShowsOutside(PageOf({plate, over})));
}

}  // namespace
}  // namespace orbelle::document
