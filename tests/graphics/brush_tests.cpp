#include "graphics/brush.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "graphics/drawing_context.h"
#include "support/instruction_sets.h"
#include "support/pictures.h"
#include "support/pixel_runs.h"
#include "support/shapes.h"

namespace orbelle::graphics {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using testing::EllipsePath;
using ::testing::IsEmpty;
using testing::RectanglePath;

// Opaque in the centre, gone at the outline: alpha is 255 (1 - t), rounded.
PathGradientBrush Fading(const Path& path, PointF center) {
    return {path, 0xFFFFFFFF, center, 0x00FFFFFF};
}

// A canvas of 16 x 16, all of it filled with the brush.
Bitmap FilledWith(const Brush& brush, PixelOffsetMode offset = PixelOffsetMode::Default) {
    Bitmap bitmap(16, 16);
    DrawingContext context(bitmap);
    context.SetPixelOffsetMode(offset);
    context.FillRectangle(brush, {0, 0, 16, 16});
    return bitmap;
}

// Up to the last pixel that is painted.
std::vector<int> Alphas(const Bitmap& bitmap, int y) {
    std::vector<int> alphas = testing::AlphaRow(bitmap, y);
    while (!alphas.empty() && alphas.back() == 0)
        alphas.pop_back();
    return alphas;
}

TEST(PathGradient, LinesOfEqualColorInARectangleAreRectangles) {
    const Brush brush = Fading(RectanglePath({0, 0, 8, 8}), {4, 4});
    // With half, t is 0.875, 0.625, 0.375, 0.125 from the outline inwards.
    const Bitmap half = FilledWith(brush, PixelOffsetMode::HighQuality);
    for (int y : {0, 7})
        EXPECT_THAT(Alphas(half, y), ElementsAre(32, 32, 32, 32, 32, 32, 32, 32));
    for (int y : {3, 4})
        EXPECT_THAT(Alphas(half, y), ElementsAre(32, 96, 159, 223, 223, 159, 96, 32));
    // With none it is 1, 0.75, ..., 0 in the centre, ..., 0.75.
    const Bitmap none = FilledWith(brush);
    EXPECT_THAT(Alphas(none, 0), IsEmpty());
    EXPECT_THAT(Alphas(none, 2), ElementsAre(0, 64, 128, 128, 128, 128, 128, 64));
    EXPECT_THAT(Alphas(none, 4), ElementsAre(0, 64, 128, 191, 255, 191, 128, 64));
}

TEST(PathGradient, ColorsAreMixedByTheirAlphaAlongTheRay) {
    // Two pixels left of the centre to the outline, six to the right.
    const PathGradientBrush brush{RectanglePath({0, 0, 8, 8}), 0x40FF0000, {2, 4}, 0xC00000FF};
    const Bitmap bitmap = FilledWith(brush);
    for (const auto& [x, color] : {std::pair{2, 0x40FF0000u},
                                   {1, 0x804000BF},
                                   {5, 0x804000BF},
                                   {0, 0xC00000FF},
                                   {8, 0xC00000FF},
                                   {15, 0xC00000FF}})
        EXPECT_EQ(bitmap.GetPixel(x, 4), color) << x;
    // A sixth of the way: 42.5, which takes a place looked up to the nearest.
    const PathGradientBrush sixth{RectanglePath({0, 0, 12, 12}), 0xFF000000, {6, 6}, 0xFF0000FF};
    EXPECT_EQ(FilledWith(sixth).GetPixel(7, 6), 0xFF00002BU);
}

TEST(PathGradient, ACirclePaintsPixelsByTheirDistanceAsFarAsItsEdge) {
    const PathGradientBrush brush{
        EllipsePath({10, 12, 100, 100}), 0xFF000000, {60, 62}, 0xFF0000FF};
    Bitmap before;
    testing::WithEachInstructionSet([&] {
        Bitmap graded(128, 128);
        DrawingContext(graded).FillRectangle(brush, {0, 0, 128, 128});
        for (int y = 0; y < 128; ++y) {
            for (int x = 0; x < 128; ++x) {
                const double distance = std::min(std::hypot(x - 60, y - 62), 50.0);
                ASSERT_NEAR(BlueOf(graded.Row(y)[x]), distance * 255 / 50, 1) << x << ", " << y;
                ASSERT_EQ(AlphaOf(graded.Row(y)[x]), 255U) << x << ", " << y;
            }
        }
        ASSERT_TRUE(before.IsEmpty() || testing::SamePixels(graded, before));
        before = graded;
    });
}

TEST(PathGradient, PartsAndSoftEdgesTakeTheColorsOfTheirPixels) {
    const Brush brush = Fading(EllipsePath({1, 1, 13, 12}), {5, 6});
    const Bitmap whole = FilledWith(brush, PixelOffsetMode::HighQuality);
    Bitmap part(16, 16), soft(16, 16);
    DrawingContext context(part), smooth(soft);
    context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context.FillRectangle(brush, {3, 2, 6, 5});
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            EXPECT_EQ(part.Row(y)[x], x >= 3 && x < 9 && y >= 2 && y < 7 ? whole.Row(y)[x] : 0U);

    // The outer pixels are half covered, in the corners a quarter.
    smooth.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    smooth.SetSmoothingMode(SmoothingMode::AntiAlias);
    smooth.FillPath(brush, RectanglePath({4.5f, 4.5f, 4, 4}));
    for (const auto& [x, y, covered] :
         {std::tuple{6, 6, 1.0}, {6, 4, 0.5}, {4, 7, 0.5}, {8, 6, 0.5}, {8, 8, 0.25}, {3, 6, 0.0}})
        EXPECT_NEAR(AlphaOf(soft.Row(y)[x]), covered * AlphaOf(whole.Row(y)[x]), 1.5)
            << x << ", " << y;
}

TEST(PathGradient, ACentreOutsideSeesTheFarEdge) {
    const Bitmap bitmap = FilledWith(Fading(RectanglePath({4, 0, 4, 4}), {0, 2}));
    // Rays to the upper edge (y = 0) have covered half their way at y = 1.
    for (int y : {1, 2})
        EXPECT_THAT(Alphas(bitmap, y), ElementsAre(0, 0, 0, 0, 128, 96, 64, 32));
    EXPECT_THAT(Alphas(bitmap, 4), IsEmpty());
}

TEST(PathGradient, OfSeveralEdgesOnARayTheLastOneCounts) {
    const RectF nearer{4, 0, 3, 4}, farther{8, 0, 3, 4};
    Path path = RectanglePath(nearer);
    path.AddRectangle(farther);
    // The farther one's left edge, at 8, is the last of all; its right edge is at 11.
    EXPECT_THAT(Alphas(FilledWith(Fading(path, {0, 2})), 2),
                ElementsAre(0, 0, 0, 0, 128, 96, 64, 0, 70, 46, 23));
    path = RectanglePath(farther);
    path.AddRectangle(nearer);
    // Now the nearer one's right edge, at 7, comes after.
    EXPECT_THAT(Alphas(FilledWith(Fading(path, {0, 2})), 2),
                ElementsAre(0, 0, 0, 0, 109, 73, 36, 0, 70, 46, 23));
}

TEST(PathGradient, AnEmptyOrHostilePathIsAllSurround) {
    for (const auto& [path, x] : {std::pair{Path(), 4.0F},
                                  {RectanglePath({1, 1, 0, 5}), 4},
                                  {EllipsePath({4, 4, 0, 0}), 4},
                                  {EllipsePath({4, 4, INFINITY, 5}), 4},
                                  {EllipsePath({4, 4, 5, 5}), NAN}}) {
        const PathGradientBrush brush{path, 0xFF000000, {x, 4}, 0xC00000FF};
        EXPECT_THAT(testing::PixelsOf(FilledWith(brush, PixelOffsetMode::HighQuality)),
                    Each(0xC00000FFU));
    }
    const Brush huge = Fading(RectanglePath({-1e30f, -1e30f, 2e30f, 2e30f}), {4, 4});
    EXPECT_THAT(testing::AlphaRow(FilledWith(huge, PixelOffsetMode::HighQuality), 9), Each(255));
}

TEST(LineBrush, ColorsAreMixedByTheirAlpha) {
    const LinearGradientBrush fromNothing{{0, 0, 10, 10}, 0x00FF0000, 0xFF0000FF};
    EXPECT_EQ(fromNothing.ColorAt(0, 0), 0u);
    EXPECT_EQ(fromNothing.ColorAt(5, 0), 0x800000FFu);
    const LinearGradientBrush soft{{0, 0, 10, 10}, 0x40FF0000, 0xC00000FF};
    // A quarter of the weight is the red end's: 255 x 64 / (64 + 192) = 63.75.
    EXPECT_EQ(soft.ColorAt(5, 0), 0x804000BFu);
}

TEST(LineBrush, GoesToAndFroOutsideTheRectangle) {
    const LinearGradientBrush brush{{10, 0, 10, 10}, 0xFF000000, 0xFF0000FF};
    const std::pair<double, unsigned> cases[] = {{12, 51}, {20, 255}, {22, 204}, {30, 0},
                                                 {32, 51}, {8, 51},   {-2, 204}};
    for (const auto& [x, blue] : cases)
        EXPECT_EQ(BlueOf(brush.ColorAt(x, 3)), blue) << x;
    EXPECT_FALSE(CreateLineBrushFromRect({1, 1, 0, 5}, 0, 0, LinearGradientMode::Horizontal));
    EXPECT_FALSE(CreateLineBrushFromRect({1, 1, 5, 0}, 0, 0, LinearGradientMode::Horizontal));
    const LinearGradientBrush flat{{10, 0, 0, 0}, 0xFF112233, 0xFF0000FF};
    EXPECT_EQ(flat.ColorAt(11, 3), 0xFF112233u);
}

}  // namespace
}  // namespace orbelle::graphics
