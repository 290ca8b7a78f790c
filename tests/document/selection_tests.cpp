#include "document/selection.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "support/pictures.h"
#include "support/pixel_runs.h"

namespace orbelle::document {
namespace {

using graphics::Bitmap;
using graphics::PointF;
using graphics::RectF;
using graphics::RectI;
using testing::FilledPicture;
using testing::SamePixels;

constexpr int kMaxInt = std::numeric_limits<int>::max();
constexpr int kMinInt = std::numeric_limits<int>::min();

Selection RectangleSelection(const RectF& rect) {
    Selection selection;
    selection.AddFrame(rect, FrameShape::Rectangle);
    return selection;
}

// Every pixel different, soft ones too, none of alpha 0.
Bitmap Colourful(int width, int height) {
    Bitmap picture(width, height);
    for (int i = 0; i < width * height; ++i)
        picture.SetPixel(i % width, i / width,
                         0x01000000U + static_cast<unsigned>(i) * 0x02030507U);
    return picture;
}

TEST(Selection, BeginsInfiniteTakesShapesAndEnds) {
    const RectI plane{-4194304, -4194304, 8388608, 8388608};
    Selection selection;
    EXPECT_FALSE(selection.Exists());
    selection.Start();
    EXPECT_FALSE(selection.Exists());
    EXPECT_EQ(selection.Bounds(), plane);
    selection.Clear();
    EXPECT_EQ(selection.Bounds(), plane) << "there is nothing to end yet";

    selection.AddFrame({1, 1, 4, 3}, FrameShape::Rectangle);
    EXPECT_EQ(selection.Bounds(), (RectI{1, 1, 4, 3}));
    selection.AddPolygon(std::vector<PointF>{{8, 2}, {12, 2}, {12, 6}, {8, 6}});
    selection.AddFrame({3, 2, 3, 4}, FrameShape::Rectangle);
    EXPECT_EQ(PixelRuns(selection.Region().Rects()), "1: 1-4; 2-3: 1-5 8-11; 4-5: 3-5 8-11");

    selection.Clear();
    EXPECT_FALSE(selection.Exists());
    EXPECT_TRUE(selection.Region().IsNull());
    selection.AddFrame({1, 1, 2, 2}, FrameShape::Ellipse);
    EXPECT_EQ(selection.Bounds(), (RectI{1, 1, 2, 2})) << "nothing of the last one is left";
}

TEST(Selection, ShapesWithoutPixelsCountToo) {
    Selection selection;
    selection.AddFrame({3, 3, 0, 0}, FrameShape::Rectangle);
    EXPECT_TRUE(selection.Exists());
    selection.AddFrame({3, 3, 6, 6}, static_cast<FrameShape>(2));
    selection.AddPolygon(std::vector<PointF>{{1, 1}, {5, 5}});
    selection.AddPolygon(std::vector<PointF>{{1, 1}, {5, std::nanf("")}, {1, 5}});
    EXPECT_TRUE(selection.Region().IsEmpty());
    selection.AddFrame({4, 4, 2, 2}, FrameShape::Rectangle);
    EXPECT_EQ(PixelRuns(selection.Region().Rects()), "4-5: 4-5");

    Selection halves;
    halves.AddPolygon(std::vector<PointF>{{0.5f, 1.5f}, {3, 1.5f}, {3, 5}, {0.5f, 5}});
    EXPECT_EQ(halves.Bounds(), (RectI{0, 2, 2, 4})) << "ties are rounded to even";
}

// Page pixels (1, 1) to (3, 2): 4 x 2 scene pixels from (2 + 1 + 2, 3 + 2).
TEST(DrawShade, DarkensThePageButNotTheSelectionAndWhatIsSelectedOffThePage) {
    const auto shade = [](const Selection& selection, const RectF& page, PointF offset, int scale) {
        Bitmap scene(20, 16);
        graphics::DrawingContext context(scene);
        selection.DrawShade(context, page, offset, scale);
        EXPECT_TRUE(scene.GetPixel(2, 3) == 0U || scene.GetPixel(2, 3) == 0x64000000U);
        return PixelRuns(scene);
    };
    EXPECT_EQ(shade({}, {2, 3, 12, 8}, {1, 0}, 2), "") << "no selection";
    EXPECT_EQ(shade(RectangleSelection({1, 1, 2, 1}), {2, 3, 12, 8}, {1, 0}, 2),
              "3-4: 2-13; 5-6: 2-4 9-13; 7-10: 2-13");
    EXPECT_EQ(shade(RectangleSelection({2, 1, 4, 2}), {2, 2, 4, 4}, {0, 0}, 1),
              "2: 2-5; 3-4: 2-3 6-7; 5: 2-5");
}

// The picture covers (-1, 2) to (4, 6) of the page; the selection reaches over its top.
TEST(TakeOut, CopiesAndCutsTheSelectedPixels) {
    const Bitmap picture = Colourful(5, 4);
    Bitmap rest = picture;
    for (const auto& [x, y] : {std::pair{2, 0}, {3, 0}, {2, 1}, {3, 1}})
        rest.SetPixel(x, y, 0);
    const Selection selection = RectangleSelection({1, 1, 2, 3});
    for (const auto& [cuts, copies] : {std::pair{true, true}, {true, false}, {false, true}}) {
        Bitmap image = picture;
        const TakenOut copy = selection.TakeOut(image, 5, 4, 8, 8, {-1, 2}, cuts, copies);
        if (copies) {
            EXPECT_EQ(copy.Area, (RectI{1, 1, 2, 3}));
            EXPECT_EQ(PixelRuns(copy.Image), "1-2: 0-1");
            EXPECT_TRUE(
                SamePixels(copy.Image.CloneArea(0, 1, 2, 2), picture.CloneArea(2, 0, 2, 2)));
        } else {
            EXPECT_TRUE(copy.Image.IsEmpty());
        }
        EXPECT_TRUE(SamePixels(image, cuts ? rest : picture));
    }
    EXPECT_EQ(selection.Bounds(), (RectI{1, 1, 2, 3})) << "the selection stays on the page";
}

TEST(TakeOut, TheCopyAndTheHoleOfAnEllipseAreTheSamePixels) {
    Selection selection;
    selection.AddFrame({1, 1, 4, 4}, FrameShape::Ellipse);
    Bitmap image = FilledPicture(8, 8, 0xFF336699);
    const TakenOut copy = selection.TakeOut(image, 8, 8, 8, 8, {0, 0}, true, true);
    // The pixels 2: 2-4; 3: 1-4; 4: 2-4.
    EXPECT_EQ(PixelRuns(copy.Image), "1: 1-3; 2: 0-3; 3: 1-3");
    EXPECT_EQ(PixelRuns(image), "0-1: 0-7; 2: 0-1 5-7; 3: 0 5-7; 4: 0-1 5-7; 5-7: 0-7");
}

// A picture that reaches over the page's right and lower edge: only what lies on the page goes.
TEST(TakeOut, CutsTheSelectionToThePage) {
    const struct {
        RectF Selection;
        RectI Area;
        const char* Rest;
    } cases[] = {
        {{5, 5, 3, 3}, {5, 5, 3, 3}, "0-4: 0-9; 5-7: 0-4 8-9; 8-9: 0-9"},
        {{0, 0, 30, 30}, {0, 0, 8, 8}, "0-7: 8-9; 8-9: 0-9"},
        {{5, 2, 30, 3}, {5, 2, 3, 3}, "0-1: 0-9; 2-4: 0-4 8-9; 5-9: 0-9"},
        {{2, 6, 3, 3}, {2, 6, 3, 2}, "0-5: 0-9; 6-7: 0-1 5-9; 8-9: 0-9"},
        {{2, 8, 3, 3}, {}, "0-9: 0-9"},
        {{2, 2, 0, 3}, {}, "0-9: 0-9"},
    };
    for (const auto& [selected, area, rest] : cases) {
        const Selection selection = RectangleSelection(selected);
        Bitmap image = FilledPicture(10, 10, 0xFF336699);
        const TakenOut copy = selection.TakeOut(image, 10, 10, 8, 8, {0, 0}, true, true);
        EXPECT_EQ(copy.Area, area);
        EXPECT_EQ(copy.Image.Height(), area.Height);
        EXPECT_EQ(PixelRuns(image), rest);
        EXPECT_EQ(selection.IsOnPage(8, 8), area.Width > 0);
    }
}

TEST(TakeOut, HostileSizesChangeNothing) {
    Selection selection;
    selection.AddFrame({-2e9F, -2e9F, 4e9F, 4e9F}, FrameShape::Ellipse);
    selection.AddFrame({2, 2, 4, 4}, FrameShape::Rectangle);
    const Bitmap picture = Colourful(4, 4);
    for (const int size : {0, -1, kMinInt, kMaxInt}) {
        Bitmap image = picture;
        const TakenOut copy = selection.TakeOut(image, size, size, size, size, {0, 0}, true, true);
        EXPECT_TRUE(copy.Image.IsEmpty());
        EXPECT_TRUE(SamePixels(image, picture));
    }
    Bitmap image = picture;
    selection.TakeOut(image, 4, 4, 8, 8, {std::nanf(""), 1e38f}, true, true);
    EXPECT_EQ(image.Width(), 4);
}

}  // namespace
}  // namespace orbelle::document
