#include "filters/create_region.h"

#include <gmock/gmock.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::RectI;
using graphics::Region;
using ::testing::ElementsAre;
using testing::PictureOf;

std::vector<RectI> RegionOf(const graphics::Bitmap& picture, int level = kVisibleAlpha) {
    Region region;
    CreateRegion(picture, region, level);
    return region.Rects();
}

TEST(CreateRegion, LiesOnePixelToTheLeftOfThePicture) {
    EXPECT_THAT(RegionOf(PictureOf({"###", "###"})), ElementsAre(RectI{-1, 0, 3, 2}));

    graphics::Bitmap one(10, 10);
    one.SetPixel(5, 7, 0x01000000);
    EXPECT_THAT(RegionOf(one), ElementsAre(RectI{4, 7, 1, 1}));
}

TEST(CreateRegion, MakesARectangleForEachRun) {
    EXPECT_THAT(RegionOf(PictureOf({"##.#", "....", "...#"})),
                ElementsAre(RectI{-1, 0, 2, 1}, RectI{2, 0, 1, 1}, RectI{2, 2, 1, 1}));
}

TEST(CreateRegion, TakesPixelsFromTheLevelOn) {
    graphics::Bitmap picture(3, 1);
    picture.SetPixel(0, 0, 0x95FFFFFF);
    picture.SetPixel(1, 0, 0x96000000);
    picture.SetPixel(2, 0, 0xFF000000);
    EXPECT_THAT(RegionOf(picture, kSolidAlpha), ElementsAre(RectI{0, 0, 2, 1}));
}

TEST(CreateRegion, APictureWithoutAVisiblePixelLeavesTheRegionAsItWas) {
    Region region;
    CreateRegion(graphics::Bitmap(4, 4), region, kVisibleAlpha);
    EXPECT_TRUE(region.IsNull());
    CreateRegion(PictureOf({"#"}), region, kVisibleAlpha);
    CreateRegion(graphics::Bitmap(), region, kVisibleAlpha);
    EXPECT_THAT(region.Rects(), ElementsAre(RectI{-1, 0, 1, 1}));
}

TEST(CreateRegion, RebuiltStandsAtItsPlaceAndMovesOnWithoutAPicture) {
    Region region;
    RebuildRegion(region, PictureOf({"#"}), {10, 20});
    EXPECT_THAT(region.Rects(), ElementsAre(RectI{9, 20, 1, 1}));
    RebuildRegion(region, graphics::Bitmap(4, 4), {1, 2});
    EXPECT_THAT(region.Rects(), ElementsAre(RectI{10, 22, 1, 1}));
}

}  // namespace
}  // namespace orbelle::filters
