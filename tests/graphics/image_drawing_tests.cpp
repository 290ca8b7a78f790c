#include "graphics/detail/image_drawing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

#include "graphics/detail/blend.h"
#include "graphics/detail/recoloring.h"
#include "graphics/rotate_flip.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

using enum InterpolationMode;
using ::testing::ElementsAreArray;
using testing::PixelsOf;
using testing::RowOf;

constexpr InterpolationMode kAllModes[] = {Default, HighQuality, NearestNeighbor};
constexpr double kNone = 0;
constexpr double kHalf = 0.5;

Argb Grey(unsigned value, unsigned alpha = 255) {
    return MakeARGB(alpha, value, value, value);
}

Bitmap GreyRow(const std::vector<unsigned>& values) {
    std::vector<Argb> pixels;
    for (unsigned value : values)
        pixels.push_back(Grey(value));
    return RowOf(pixels);
}

Bitmap Transposed(Bitmap image) {
    ImageRotateFlip(image, RotateFlipType::Rotate90FlipX);
    return image;
}

Bitmap Noise(int width, int height) {
    std::mt19937 random(3);
    return testing::RandomPicture(random, width, height);
}

RectI WholeOf(const Bitmap& bitmap) {
    return {0, 0, bitmap.Width(), bitmap.Height()};
}

void DrawUnclipped(Bitmap& target, const Bitmap& image, const ImageDrawing& drawing) {
    const RectI clip = WholeOf(target);
    DrawImageOn(target, image, drawing, {&clip, 1});
}

ImageDrawing Whole(const Bitmap& image, RectF destination, InterpolationMode mode, double offset) {
    return {.Destination = destination,
            .Source = WholeOf(image),
            .Interpolation = mode,
            .Offset = offset,
            .Attributes = {}};
}

// Draws a one-row picture at (x, 0) and `width` wide over a row, and checks that a column comes
// out the same.
std::vector<Argb> DrawnRow(const Bitmap& image, float x, float width, InterpolationMode mode,
                           double offset, const std::vector<Argb>& background) {
    Bitmap row = RowOf(background);
    DrawUnclipped(row, image, Whole(image, {x, 0, width, 1}, mode, offset));
    Bitmap column = Transposed(RowOf(background));
    const Bitmap turned = Transposed(image);
    DrawUnclipped(column, turned, Whole(turned, {0, x, 1, width}, mode, offset));
    EXPECT_EQ(PixelsOf(column), PixelsOf(row));
    return PixelsOf(row);
}

TEST(ImageDrawing, NearestTakesThePixelAtTheSample) {
    struct Case {
        int Source;
        float X, Width;
        double Offset;
        std::string Drawn;  // the source pixel at each target pixel, "." for none
    };
    for (const Case& c : std::vector<Case>{{4, 0, 8, kHalf, "00112233"},
                                           {4, 0, 8, kNone, "0112233."},
                                           {6, 0, 3, kHalf, "135"},
                                           {6, 0, 3, kNone, "024"},
                                           {3, 0, 7, kHalf, "0011122"},
                                           {5, 0, 3, kHalf, "024"},
                                           {2, 1.2F, 2.4F, kNone, "..1....."},
                                           {2, 1.5F, 3.0F, kNone, "..01...."},
                                           {2, 1.8F, 3.6F, kNone, "..011..."},
                                           {2, 2.0F, 4.0F, kNone, "..011..."},
                                           {2, 2.5F, 5.0F, kNone, "...0111."},
                                           {2, 1.2F, 2.4F, kHalf, ".011...."},
                                           {2, 1.5F, 3.0F, kHalf, ".001...."},
                                           {2, 1.8F, 3.6F, kHalf, "..001..."},
                                           {2, 2.0F, 4.0F, kHalf, "..0011.."},
                                           {2, 2.5F, 5.0F, kHalf, "..00011."},
                                           {4, -2.0F, 8.0F, kHalf, "112233.."}}) {
        std::vector<Argb> image;
        for (int i = 0; i < c.Source; ++i)
            image.push_back(Grey('0' + i));
        std::string drawn;
        for (const Argb pixel : DrawnRow(RowOf(image), c.X, c.Width, NearestNeighbor, c.Offset,
                                         std::vector<Argb>(c.Drawn.size(), Grey('.'))))
            drawn += static_cast<char>(BlueOf(pixel));
        EXPECT_EQ(drawn, c.Drawn) << c.Source << " pixels at " << c.X << ", " << c.Offset;
    }
}

TEST(ImageDrawing, BilinearFadesAtTheBordersAndShiftsWithoutOffset) {
    const auto opaque = [](const std::vector<unsigned>& values) {
        return PixelsOf(GreyRow(values));
    };
    const Bitmap four = GreyRow({40, 80, 120, 200});
    const std::vector<Argb> empty(8, 0);
    EXPECT_EQ(DrawnRow(GreyRow({128, 204}), 2, 4, Default, kNone, std::vector(8, Grey(64))),
              opaque({64, 64, 128, 166, 204, 134, 64, 64}));
    EXPECT_THAT(DrawnRow(four, 0, 8, Default, kHalf, empty),
                ElementsAreArray({Grey(40, 191), Grey(50), Grey(70), Grey(90), Grey(110), Grey(140),
                                  Grey(180), Grey(200, 191)}));
    EXPECT_THAT(DrawnRow(four, 0, 8, Default, kNone, empty),
                ElementsAreArray({Grey(40), Grey(60), Grey(80), Grey(100), Grey(120), Grey(160),
                                  Grey(200), Grey(200, 128)}));
    // No prefilter: the samples lie at 0 and 4, or at 1.5 and 5.5, whatever lies between.
    EXPECT_EQ(DrawnRow(GreyRow({10, 99, 99, 99, 20, 99, 99, 99}), 0, 2, Default, kNone, {0, 0}),
              opaque({10, 20}));
    EXPECT_EQ(DrawnRow(GreyRow({0, 10, 30, 0, 0, 50, 70, 0}), 0, 2, Default, kHalf, {0, 0}),
              opaque({20, 60}));
}

TEST(ImageDrawing, HighQualityIsCentredAndDoesNotFade) {
    struct Case {
        std::vector<unsigned> Source, Drawn;
    };
    for (const Case& c : std::vector<Case>{
             {{40, 80, 120, 200}, {36, 47, 68, 89, 107, 140, 186, 207}},
             {{40, 80, 120, 200, 200, 120, 80, 40}, {60, 162, 162, 60}},
             // 255 x (0.2266 - 0.0234) beside the step; its undershoot and overshoot are cut.
             {{0, 0, 255, 255}, {0, 0, 0, 52, 203, 255, 255, 255}}}) {
        const std::vector<Argb> blank(c.Drawn.size(), 0);
        const auto width = static_cast<float>(c.Drawn.size());
        for (const double offset : {kNone, kHalf})
            EXPECT_EQ(DrawnRow(GreyRow(c.Source), 0, width, HighQuality, offset, blank),
                      PixelsOf(GreyRow(c.Drawn)));
    }
}

TEST(ImageDrawing, EveryModeCopiesPixelsAtTheirOwnSize) {
    const Bitmap image = Noise(7, 5);
    for (const auto mode : kAllModes) {
        for (const double offset : {kNone, kHalf}) {
            Bitmap target(9, 9);
            // The source reaches over the picture's right end; the copy over the target's left.
            DrawUnclipped(target, image,
                          {.Destination = {-2, 3, 6, 4},
                           .Source = {3, 1, 6, 4},
                           .Interpolation = mode,
                           .Offset = offset,
                           .Attributes = {}});
            for (int y = 0; y < 9; ++y) {
                for (int x = 0; x < 9; ++x) {
                    const bool inside = x < 2 && y >= 3 && y < 7;
                    const Argb expected = inside ? image.Row(y - 2)[x + 5] : 0;
                    EXPECT_EQ(target.Row(y)[x], AlphaOf(expected) ? expected : 0) << x << ' ' << y;
                }
            }
        }
    }
}

TEST(ImageDrawing, SoftEdgesKeepTheirColourWhenShrunk) {
    constexpr int size = 512;
    Bitmap disc(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double distance = std::hypot(x - 255.5, y - 255.5);
            disc.SetPixel(x, y, Grey(distance < 250 ? 255 : 0, distance < 250 ? 255 : 0));
        }
    }
    Bitmap opaque(size, size, PixelFormat::Rgb24);
    for (const auto mode : {Default, HighQuality}) {
        for (const int small : {256, 128, 64, 48, 32, 24, 16}) {
            SCOPED_TRACE(small);
            const RectF destination{0, 0, float(small), float(small)};
            Bitmap target(small, small);
            DrawUnclipped(target, disc, Whole(disc, destination, mode, kHalf));
            int soft = 0;
            for (const Argb pixel : PixelsOf(target)) {
                EXPECT_TRUE(AlphaOf(pixel) == 0 ? pixel == 0 : BlueOf(pixel) == 255) << pixel;
                soft += AlphaOf(pixel) > 0 && AlphaOf(pixel) < 255;
            }
            if (mode == Default)
                continue;
            EXPECT_GT(soft, small);
            Bitmap full(small, small);
            DrawUnclipped(full, opaque, Whole(opaque, destination, mode, kNone));
            EXPECT_THAT(PixelsOf(full), ::testing::Each(0xFF000000));
        }
    }
}

TEST(ImageDrawing, AWholeNumberedRightEndIsNeverCrossed) {
    const Bitmap image = GreyRow({9, 9, 9, 9, 9, 9, 9});
    for (const auto mode : kAllModes) {
        const auto row = DrawnRow(image, -9, 29, mode, kNone, std::vector<Argb>(21, 0));
        EXPECT_EQ(row[20], Argb{0}) << int(mode);
        EXPECT_GT(AlphaOf(row[17]), 0u) << int(mode);
    }
}

// A source larger than its picture has transparent surroundings: they fade into the bilinear modes'
// result, and cut that of the high-quality modes.
TEST(ImageDrawing, SourceMayReachOutsideThePicture) {
    const Bitmap image = GreyRow({100, 200});
    const auto draw = [&](InterpolationMode mode) {
        Bitmap target(8, 1);
        DrawUnclipped(target, image,
                      {.Destination = {0, 0, 8, 1},
                       .Source = {-1, 0, 4, 1},
                       .Interpolation = mode,
                       .Offset = kHalf,
                       .Attributes = {}});
        return PixelsOf(target);
    };
    EXPECT_THAT(draw(NearestNeighbor),
                ElementsAreArray({0u, 0u, Grey(100), Grey(100), Grey(200), Grey(200), 0u, 0u}));
    EXPECT_THAT(draw(Default), ElementsAreArray({0u, Grey(100, 64), Grey(100, 191), Grey(125),
                                                 Grey(175), Grey(200, 191), Grey(200, 64), 0u}));
    EXPECT_THAT(draw(HighQuality),
                ElementsAreArray({0u, 0u, Grey(91), Grey(121), Grey(179), Grey(209), 0u, 0u}));
}

TEST(ImageDrawing, ClippedPixelsAreThoseOfTheWholeDrawing) {
    const Bitmap image = Noise(13, 11);
    const Bitmap background = Noise(40, 30);
    const std::vector<RectI> clip = {{0, 0, 3, 2}, {5, 0, 30, 2}, {4, 9, 1, 12}, {7, 9, 33, 12}};
    const auto isInClip = [&](int x, int y) {
        return std::any_of(clip.begin(), clip.end(), [&](const RectI& rect) {
            return Intersect(rect, {x, y, 1, 1}) == RectI{x, y, 1, 1};
        });
    };
    const RectF destinations[] = {
        {-3.3F, -2.7F, 50.1F, 20},
        {6, 1, 13, 11},
        {5.5F, 0.5F, 7.25F, 25},
        {0, -9, 40, 60},  // the first rows of two rectangles show the same row of the picture
    };
    for (const auto mode : kAllModes) {
        for (const RectF& destination : destinations) {
            for (const double offset : {kNone, kHalf}) {
                ImageDrawing drawing = Whole(image, destination, mode, offset);
                drawing.Source = {-1, 2, 13, 11};
                drawing.Attributes.Matrix = OpacityMatrix(0.75F);
                Bitmap whole = background, clipped = background;
                DrawUnclipped(whole, image, drawing);
                EXPECT_FALSE(whole.SharesPixelsWith(background));
                DrawImageOn(clipped, image, drawing, clip);
                for (int y = 0; y < 30; ++y) {
                    for (int x = 0; x < 40; ++x)
                        ASSERT_EQ(clipped.Row(y)[x],
                                  (isInClip(x, y) ? whole : background).Row(y)[x])
                            << int(mode) << ": " << x << ' ' << y;
                }
            }
        }
    }
}

TEST(ImageDrawing, AttributesChangeThePictureBeforeItIsSampled) {
    const Bitmap image = Noise(9, 6);
    ColorMatrix swap{};
    swap[0][2] = swap[1][1] = swap[2][0] = 1;
    swap[3][3] = 0.6F;
    for (const ColorMatrix& matrix : {swap, OpacityMatrix(0.6F)}) {
        const ImageAttributes attributes{matrix};
        Bitmap changed = image;
        Recoloring(attributes).Apply({changed.MutablePixels(), 9 * 6});
        for (const auto mode : kAllModes) {
            for (const RectF& destination : {RectF{1, 2, 9, 6}, {0.5F, 1, 20, 4}}) {
                Bitmap direct = Noise(24, 9), expected = direct;
                ImageDrawing drawing = Whole(image, destination, mode, kHalf);
                DrawUnclipped(expected, changed, drawing);
                drawing.Attributes = attributes;
                DrawUnclipped(direct, image, drawing);
                EXPECT_EQ(PixelsOf(direct), PixelsOf(expected)) << int(mode);
            }
        }
    }
    Bitmap untouched = image;
    ImageDrawing drawing = Whole(image, {0, 0, 20, 4}, HighQuality, kHalf);
    drawing.Attributes.Matrix = OpacityMatrix(0);
    DrawUnclipped(untouched, Noise(20, 4), drawing);
    EXPECT_EQ(PixelsOf(untouched), PixelsOf(image));
}

TEST(ImageDrawing, ABitmapCanBeDrawnOnItself) {
    for (const auto mode : kAllModes) {
        Bitmap bitmap = Noise(16, 16);
        Bitmap expected = bitmap;
        const ImageDrawing drawing = Whole(bitmap, {3, 5, 16, 10}, mode, kHalf);
        DrawUnclipped(expected, Noise(16, 16), drawing);
        DrawUnclipped(bitmap, bitmap, drawing);
        EXPECT_EQ(PixelsOf(bitmap), PixelsOf(expected));
    }
}

TEST(ImageDrawing, TwentyFourBitTargetsStayOpaque) {
    Bitmap target(20, 20, PixelFormat::Rgb24);
    const Bitmap image = Noise(20, 20);
    DrawUnclipped(target, image, Whole(image, {0, 0, 20, 20}, Default, kHalf));
    EXPECT_EQ(target.GetPixel(4, 7), BlendPixel(0xFF000000, image.Row(7)[4]));
    DrawUnclipped(target, image, Whole(image, {-3, 0, 31, 9}, HighQuality, kHalf));
    for (const Argb pixel : PixelsOf(target))
        EXPECT_EQ(AlphaOf(pixel), 255u);
}

TEST(ImageDrawing, HostileRectanglesDrawNothing) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    struct Case {
        RectF Destination;
        RectI Source;
    };
    const Bitmap image = Noise(4, 4);
    for (const auto mode : kAllModes) {
        for (const Case& c :
             std::vector<Case>{{{0, 0, 0, 4}, {0, 0, 4, 4}},
                               {{4, 4, -4, 4}, {0, 0, 4, 4}},
                               {{nan, 0, 4, 4}, {0, 0, 4, 4}},
                               {{0, 0, 4, nan}, {0, 0, 4, 4}},
                               {{0, 0, infinity, 4}, {0, 0, 4, 4}},
                               {{-infinity, 0, 4, 4}, {0, 0, 4, 4}},
                               {{1e30F, 0, 4, 4}, {0, 0, 4, 4}},
                               {{0.75F, 0.75F, 1e-30F, 1e-30F}, {0, 0, 4, 4}},
                               {{0, 0, 8, 8}, {0, 0, 0, 4}},
                               {{0, 0, 8, 8}, {0, 0, -4, 4}},
                               {{0, 0, 8, 8}, {4, 0, 4, 4}},
                               {{0, 0, 8, 8}, {highest, lowest, highest, highest}},
                               {{0, 0, float(highest), 4}, {lowest, 0, highest, 4}}}) {
            Bitmap target(8, 8);
            DrawUnclipped(target, image, {c.Destination, c.Source, mode, kHalf, {}});
            EXPECT_EQ(PixelsOf(target), std::vector<Argb>(64, 0)) << int(mode);
        }
        Bitmap none;
        DrawUnclipped(none, image, Whole(image, {0, 0, 4, 4}, mode, kHalf));
        DrawUnclipped(none = image, Bitmap(), Whole(image, {0, 0, 4, 4}, mode, kHalf));
        EXPECT_TRUE(none.SharesPixelsWith(image));
    }
}

TEST(ImageDrawing, EnormousAndTinyRectanglesAreSampledWhereTheTargetLies) {
    // The target's pixels fall into the second quarter of a picture of four columns.
    const Bitmap image = GreyRow({10, 20, 30, 40});
    for (const float size : {1e6F, 1e30F}) {
        for (const auto mode : kAllModes) {
            Bitmap target(3, 1);
            DrawUnclipped(target, image,
                          Whole(image, {-0.375F * size, -size / 2, size, size}, mode, kHalf));
            EXPECT_EQ(PixelsOf(target), std::vector<Argb>(3, Grey(20))) << int(mode);
        }
    }
    // The last pixel takes part by less than the numbers can tell, and has no weight left.
    Bitmap sliver(4, 1);
    const Bitmap three = GreyRow({10, 20, 30});
    DrawUnclipped(sliver, three, Whole(three, {4.5e-16F, 0, 3, 1}, HighQuality, kNone));
    EXPECT_THAT(PixelsOf(sliver), ElementsAreArray({0u, Grey(20), Grey(30), 0u}));
    // A whole picture in one pixel, however small that pixel's share.
    Bitmap target(1, 1);
    const Bitmap wide(kMaxBitmapSide, 2, PixelFormat::Rgb24);
    DrawUnclipped(target, wide, Whole(wide, {0.5F, 0.5F, 1e-10F, 1e-10F}, HighQuality, kHalf));
    EXPECT_EQ(target.GetPixel(0, 0), Argb{0xFF000000});
}

}  // namespace
}  // namespace orbelle::graphics
