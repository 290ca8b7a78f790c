#include "filters/selection_region.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "support/pictures.h"
#include "support/pixel_runs.h"

namespace orbelle::filters {
namespace {

using graphics::Bitmap;
using graphics::PointF;
using graphics::RectF;
using graphics::RectI;
using testing::FilledPicture;
using testing::SamePixels;

constexpr int kMaxInt = std::numeric_limits<int>::max();
constexpr int kMinInt = std::numeric_limits<int>::min();

ClsFilters RectangleSelection(const RectI& rect) {
    ClsFilters selection;
    selection.SetCropDatas(rect.X + rect.Width, rect.Y + rect.Height, rect.X, rect.Y,
                           CropShape::Rectangle);
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

TEST(Selection, ADragInAnyDirectionIsTheSameBox) {
    const struct {
        int X, Y, StartX, StartY;
        RectI Box;
    } cases[] = {
        {7, 9, 2, 3, {2, 3, 5, 6}},    {2, 3, 7, 9, {2, 3, 5, 6}},    {2, 9, 7, 3, {2, 3, 5, 6}},
        {7, 3, 2, 9, {2, 3, 5, 6}},    {4, 9, -5, 3, {0, 3, 4, 6}},   {-5, 9, 4, 3, {0, 3, 4, 6}},
        {7, 9, 2, -6, {2, -6, 5, 15}}, {7, -6, 2, 9, {2, -6, 5, 15}},
    };
    for (const auto& drag : cases) {
        for (const CropShape shape : {CropShape::Rectangle, CropShape::Ellipse}) {
            ClsFilters selection;
            selection.SetCropDatas(drag.X, drag.Y, drag.StartX, drag.StartY, shape);
            EXPECT_EQ(selection.GetRegionRect(), drag.Box)
                << drag.X << ", " << drag.Y << " from " << drag.StartX << ", " << drag.StartY;
        }
    }
}

TEST(Selection, BeginsInfiniteTakesShapesAndEnds) {
    const RectI plane{-4194304, -4194304, 8388608, 8388608};
    ClsFilters selection;
    EXPECT_FALSE(selection.SelectionOK());
    selection.CreateCrop();
    EXPECT_FALSE(selection.SelectionOK());
    EXPECT_EQ(selection.GetRegionRect(), plane);
    selection.ClearCrop();
    EXPECT_EQ(selection.GetRegionRect(), plane) << "there is nothing to end yet";

    selection.SetCropDatas(5, 4, 1, 1, CropShape::Rectangle);
    EXPECT_EQ(selection.GetRegionRect(), (RectI{1, 1, 4, 3}));
    selection.AddPolygonToCrop(std::vector<PointF>{{8, 2}, {12, 2}, {12, 6}, {8, 6}});
    selection.SetCropDatas(6, 6, 3, 2, CropShape::Rectangle);
    EXPECT_EQ(selection.CropCount, 3);
    EXPECT_EQ(PixelRuns(selection.CropRegion.Rects()), "1: 1-4; 2-3: 1-5 8-11; 4-5: 3-5 8-11");

    selection.ClearCrop();
    EXPECT_FALSE(selection.SelectionOK());
    EXPECT_TRUE(selection.CropRegion.IsNull());
    selection.SetCropDatas(3, 3, 1, 1, CropShape::Ellipse);
    EXPECT_EQ(selection.GetRegionRect(), (RectI{1, 1, 2, 2})) << "nothing of the last one is left";
}

TEST(Selection, ShapesWithoutPixelsCountToo) {
    ClsFilters selection;
    selection.SetCropDatas(3, 3, 3, 3, CropShape::Rectangle);
    EXPECT_TRUE(selection.SelectionOK());
    selection.SetCropDatas(9, 9, 3, 3, static_cast<CropShape>(2));
    selection.AddPolygonToCrop(std::vector<PointF>{{1, 1}, {5, 5}});
    selection.AddPolygonToCrop(std::vector<PointF>{{1, 1}, {5, std::nanf("")}, {1, 5}});
    EXPECT_EQ(selection.CropCount, 4);
    EXPECT_TRUE(selection.CropRegion.IsEmpty());
    selection.SetCropDatas(6, 6, 4, 4, CropShape::Rectangle);
    EXPECT_EQ(PixelRuns(selection.CropRegion.Rects()), "4-5: 4-5");
}

TEST(Selection, BoundsAreRoundedWithTiesToEven) {
    ClsFilters selection;
    selection.AddPolygonToCrop(std::vector<PointF>{{0.5f, 1.5f}, {3, 1.5f}, {3, 5}, {0.5f, 5}});
    EXPECT_EQ(selection.GetRegionRect(), (RectI{0, 2, 2, 4}));
}

TEST(DrawCropRegion, DarkensThePageButNotTheSelection) {
    Bitmap scene = FilledPicture(20, 16, 0xFFFFFFFF);
    graphics::DrawingContext context(scene);
    ClsFilters selection;
    selection.DrawCropRegion(context, {2, 3, 12, 8}, {1, 0}, 2);
    EXPECT_TRUE(SamePixels(scene, FilledPicture(20, 16, 0xFFFFFFFF))) << "no selection";

    // Page pixels (1, 1) to (3, 2): from (2 + 1 + 2, 3 + 2) in the scene, 4 x 2 large.
    selection = RectangleSelection({1, 1, 2, 1});
    selection.DrawCropRegion(context, {2, 3, 12, 8}, {1, 0}, 2);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 20; ++x) {
            const bool page = x >= 2 && x < 14 && y >= 3 && y < 11;
            const bool selected = x >= 5 && x < 9 && y >= 5 && y < 7;
            EXPECT_EQ(scene.GetPixel(x, y), page && !selected ? 0xFF9B9B9BU : 0xFFFFFFFFU)
                << x << ", " << y;
        }
    }
}

TEST(DrawCropRegion, DarkensWhatIsSelectedOffThePage) {
    Bitmap scene(16, 16);
    graphics::DrawingContext context(scene);
    RectangleSelection({2, 1, 4, 2}).DrawCropRegion(context, {2, 2, 4, 4}, {0, 0}, 1);
    EXPECT_EQ(PixelRuns(scene), "2: 2-5; 3-4: 2-3 6-7; 5: 2-5");
    EXPECT_EQ(scene.GetPixel(2, 2), 0x64000000U);
    EXPECT_EQ(scene.GetPixel(7, 3), 0x64000000U);
}

TEST(DrawCropRegion, PointsAreTestedAgainstTheSelectionAsDrawn) {
    Bitmap scene(64, 64);
    graphics::DrawingContext context(scene);
    ClsFilters selection = RectangleSelection({1, 1, 4, 4});
    EXPECT_FALSE(selection.isInCropRregion(2, 2)) << "not drawn yet";
    selection.DrawCropRegion(context, {5, 5, 60, 60}, {0, 0}, 5);
    // Scene pixels 10 to 29.
    for (const auto& [point, inside] :
         {std::pair{9.5f, true}, {9.25f, false}, {29.49f, true}, {29.5f, false}, {2.0f, false}})
        EXPECT_EQ(selection.isInCropRregion(point, point), inside) << point;
    selection.ClearCrop();
    EXPECT_FALSE(selection.isInCropRregion(20, 20));
}

TEST(CropImage, CopiesAndCutsTheSelectedPixels) {
    // The picture covers (-1, 2) to (4, 6) of the page; the selection reaches over its top.
    const Bitmap picture = Colourful(5, 4);
    const ClsFilters selection = RectangleSelection({1, 1, 2, 3});
    Bitmap image = picture;
    const CroppedPicture copy = selection.CropImage(image, 5, 4, 8, 8, {-1, 2}, true, true);
    EXPECT_EQ(copy.Area, (RectI{1, 1, 2, 3}));
    ASSERT_EQ(copy.Image.Width(), 2);
    ASSERT_EQ(copy.Image.Height(), 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 2; ++x)
            EXPECT_EQ(copy.Image.GetPixel(x, y), y == 0 ? 0U : picture.GetPixel(x + 2, y - 1));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 5; ++x) {
            const bool selected = x >= 2 && x < 4 && y < 2;
            EXPECT_EQ(image.GetPixel(x, y), selected ? 0U : picture.GetPixel(x, y));
        }
    }
    EXPECT_EQ(selection.GetRegionRect(), (RectI{1, 1, 2, 3})) << "the selection stays on the page";

    Bitmap copied = picture, cut = picture;
    EXPECT_TRUE(SamePixels(selection.CropImage(copied, 5, 4, 8, 8, {-1, 2}, false, true).Image,
                           copy.Image));
    EXPECT_TRUE(SamePixels(copied, picture));
    EXPECT_TRUE(selection.CropImage(cut, 5, 4, 8, 8, {-1, 2}, true, false).Image.IsEmpty());
    EXPECT_TRUE(SamePixels(cut, image));
}

TEST(CropImage, TheCopyAndTheHoleOfAnEllipseAreTheSamePixels) {
    ClsFilters selection;
    selection.SetCropDatas(5, 5, 1, 1, CropShape::Ellipse);
    Bitmap image = FilledPicture(8, 8, 0xFF336699);
    const CroppedPicture copy = selection.CropImage(image, 8, 8, 8, 8, {0, 0}, true, true);
    // The pixels 2: 2-4; 3: 1-4; 4: 2-4.
    EXPECT_EQ(PixelRuns(copy.Image), "1: 1-3; 2: 0-3; 3: 1-3");
    EXPECT_EQ(PixelRuns(image), "0-1: 0-7; 2: 0-1 5-7; 3: 0 5-7; 4: 0-1 5-7; 5-7: 0-7");
}

TEST(CropImage, RefusesAnAreaThatLeavesThePage) {
    const struct {
        RectI Selection;
        RectI Area;
        bool Copied;
    } cases[] = {
        {{5, 5, 3, 3}, {5, 5, 3, 3}, true},    {{0, 0, 30, 30}, {0, 0, 8, 8}, true},
        {{5, 2, 30, 3}, {5, 2, 8, 3}, false},  {{2, 6, 3, 3}, {2, 6, 3, 3}, false},
        {{2, -1, 3, 3}, {2, -1, 3, 3}, false}, {{2, 2, 0, 3}, {0, 0, 0, 0}, false},
    };
    for (const auto& test : cases) {
        Bitmap image = FilledPicture(8, 8, 0xFF336699);
        const CroppedPicture copy =
            RectangleSelection(test.Selection).CropImage(image, 8, 8, 8, 8, {0, 0}, false, true);
        EXPECT_EQ(copy.Area, test.Area);
        EXPECT_EQ(copy.Image.IsEmpty(), !test.Copied);
    }
}

TEST(CropImage, HostileSizesChangeNothing) {
    ClsFilters selection;
    selection.SetCropDatas(kMaxInt, kMaxInt, kMinInt, kMinInt, CropShape::Ellipse);
    selection.SetCropDatas(6, 6, 2, 2, CropShape::Rectangle);
    const Bitmap picture = Colourful(4, 4);
    for (const int size : {0, -1, kMinInt, kMaxInt}) {
        Bitmap image = picture;
        const CroppedPicture copy =
            selection.CropImage(image, size, size, size, size, {0, 0}, true, true);
        EXPECT_TRUE(copy.Image.IsEmpty());
        EXPECT_TRUE(SamePixels(image, picture));
    }
    Bitmap image = picture;
    selection.CropImage(image, 4, 4, 8, 8, {std::nanf(""), 1e38f}, true, true);
    EXPECT_EQ(image.Width(), 4);
}

}  // namespace
}  // namespace orbelle::filters
