#include "filters/create_region.h"

#include <gmock/gmock.h>

#include "support/pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::RectI;
using graphics::Region;
using ::testing::ElementsAre;
using testing::PictureOf;

TEST(CreateRegion, MakesARectangleForEachRunAPixelToTheLeft) {
    const Bitmap levels = testing::RowOf({0x95FFFFFF, 0x96000000, 0xFF000000});
    const struct {
        Bitmap Picture;
        int Level;
        std::vector<RectI> Rects;
    } cases[] = {
        {PictureOf({"###", "###"}), kVisibleAlpha, {{-1, 0, 3, 2}}},
        {PictureOf({"...", "..#"}, 0x01000000), kVisibleAlpha, {{1, 1, 1, 1}}},
        {PictureOf({"##.#", "....", "...#"}),
         kVisibleAlpha,
         {{-1, 0, 2, 1}, {2, 0, 1, 1}, {2, 2, 1, 1}}},
        {levels, kSolidAlpha, {{0, 0, 2, 1}}},
    };
    for (const auto& [picture, level, rects] : cases) {
        Region region;
        CreateRegion(picture, region, level);
        EXPECT_EQ(region.Rects(), rects);
    }
}

TEST(CreateRegion, APictureWithoutAVisiblePixelLeavesTheRegionAsItWas) {
    Region region;
    CreateRegion(Bitmap(4, 4), region, kVisibleAlpha);
    EXPECT_TRUE(region.IsNull());
    CreateRegion(PictureOf({"#"}), region, kVisibleAlpha);
    CreateRegion(Bitmap(), region, kVisibleAlpha);
    EXPECT_THAT(region.Rects(), ElementsAre(RectI{-1, 0, 1, 1}));
}

TEST(CreateRegion, RebuiltStandsAtItsPlaceAndMovesOnWithoutAPicture) {
    Region region;
    RebuildRegion(region, PictureOf({"#"}), {10, 20});
    EXPECT_THAT(region.Rects(), ElementsAre(RectI{9, 20, 1, 1}));
    RebuildRegion(region, Bitmap(4, 4), {1, 2});
    EXPECT_THAT(region.Rects(), ElementsAre(RectI{10, 22, 1, 1}));
}

}  // namespace
}  // namespace orbelle::filters
