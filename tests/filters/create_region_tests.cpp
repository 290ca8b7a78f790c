#include "filters/create_region.h"

#include <gmock/gmock.h>

#include <random>

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

// Beyond so many runs a region is kept as bits, which nobody may notice.
TEST(CreateRegion, ARaggedPictureHasTheSamePixels) {
    constexpr int kWidth = 403, kHeight = 350;
    std::mt19937 random(7);
    Bitmap picture(kWidth, kHeight);
    std::vector<RectI> runs;
    for (int y = 1; y < kHeight - 2; ++y) {
        for (int x = 3; x < kWidth - 1; ++x) {
            if (random() % 2 == 0)
                continue;
            picture.SetPixel(x, y, 0x01000000);
            if (!runs.empty() && runs.back().Y == y && runs.back().Right() == x - 1)
                ++runs.back().Width;
            else
                runs.push_back({x - 1, y, 1, 1});
        }
    }
    ASSERT_GT(runs.size(), 32768U);
    for (const auto& [dx, dy] : {std::pair(0.0F, 0.0F), {-20.0F, 11.0F}, {0.25F, -7.5F}}) {
        Region region, plain = Region::FromPixelRects(runs);
        RebuildRegion(region, picture, {dx, dy});
        plain.Translate(dx, dy);
        EXPECT_EQ(region.Bounds(), plain.Bounds());
        EXPECT_FALSE(region.IsEmpty());
        for (int i = 0; i < 5000; ++i) {
            const float x = static_cast<float>(random() % 1700) / 4 - 10;
            const float y = static_cast<float>(random() % 1500) / 4 - 10;
            ASSERT_EQ(region.IsVisiblePoint(x, y), plain.IsVisiblePoint(x, y)) << x << ", " << y;
        }
        EXPECT_EQ(region.Rects(), plain.Rects());
        region.CombineRect({5, 5, 90, 80}, graphics::CombineMode::Exclude);
        plain.CombineRect({5, 5, 90, 80}, graphics::CombineMode::Exclude);
        EXPECT_EQ(region.Rects(), plain.Rects());
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
