#include "graphics/detail/image_drawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "graphics/detail/blend.h"
#include "graphics/detail/recoloring.h"
#include "graphics/detail/resampling.h"
#include "graphics/drawing_context.h"
#include "graphics/rotate_flip.h"
#include "support/instruction_sets.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::graphics {
namespace {

using enum InterpolationMode;
using testing::PixelsOf;
using testing::RowOf;

constexpr InterpolationMode kAllModes[] = {Default, HighQuality, NearestNeighbor};
constexpr double kNone = 0;
constexpr double kHalf = 0.5;

Argb Grey(unsigned value, unsigned alpha = 255) {
    return MakeArgb(alpha, value, value, value);
}

Bitmap GreyRow(const std::vector<unsigned>& values) {
    std::vector<Argb> pixels(values.size());
    std::ranges::transform(values, pixels.begin(), [](unsigned value) { return Grey(value); });
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
    return {destination, WholeOf(image), mode, offset, {}};
}

// Greys as "VALUE" or "VALUE/ALPHA", "." for nothing.
std::string Text(const Bitmap& row) {
    std::ostringstream text;
    for (const Argb pixel : PixelsOf(row)) {
        text << (text.tellp() > 0 ? " " : "");
        if (pixel == 0)
            text << '.';
        else if (AlphaOf(pixel) == 255)
            text << BlueOf(pixel);
        else
            text << BlueOf(pixel) << '/' << AlphaOf(pixel);
    }
    return text.str();
}

struct RowCase {
    InterpolationMode Mode;
    double Offset;
    std::vector<unsigned> Picture;
    float X, Width;
    std::string Drawn;
    int Beyond = 0;  // pixels of the source on either side of the picture
};

TEST(ImageDrawing, RowsAndColumns) {
    const std::vector<unsigned> two{1, 2}, four{1, 2, 3, 4}, ramp{40, 80, 120, 200};
    for (const auto& [mode, offset, picture, x, width, drawn, beyond] : std::vector<RowCase>{
             {NearestNeighbor, kHalf, four, 0, 8, "1 1 2 2 3 3 4 4"},
             {NearestNeighbor, kNone, four, 0, 8, "1 2 2 3 3 4 4 ."},
             {NearestNeighbor, kHalf, {0, 1, 2, 3, 4, 5}, 0, 3, "1 3 5"},
             {NearestNeighbor, kNone, {0, 1, 2, 3, 4, 5}, 0, 3, "0 2 4"},
             {NearestNeighbor, kHalf, {0, 1, 2}, 0, 7, "0 0 1 1 1 2 2"},
             {NearestNeighbor, kNone, two, 1.2F, 2.4F, ". . 2 . ."},
             {NearestNeighbor, kNone, two, 1.5F, 3.0F, ". . 1 2 . ."},
             {NearestNeighbor, kNone, two, 1.8F, 3.6F, ". . 1 2 2 . ."},
             {NearestNeighbor, kNone, two, 2.5F, 5.0F, ". . . 1 2 2 2 ."},
             {NearestNeighbor, kHalf, two, 1.2F, 2.4F, ". 1 2 2 . ."},
             {NearestNeighbor, kHalf, two, 1.5F, 3.0F, ". 1 1 2 . ."},
             {NearestNeighbor, kHalf, two, 1.8F, 3.6F, ". . 1 1 2 . ."},
             {NearestNeighbor, kHalf, two, 2.5F, 5.0F, ". . 1 1 1 2 2 ."},
             {NearestNeighbor, kHalf, four, -2, 8, "2 2 3 3 4 4 . ."},
             {NearestNeighbor, kHalf, two, 0, 8, ". . 1 1 2 2 . .", 1},
             // Fades at the borders and shifts without offset.
             {Default, kNone, {128, 204}, 2, 4, ". . 128 166 204 204/128 . ."},
             {Default, kHalf, ramp, 0, 8, "40/191 50 70 90 110 140 180 200/191"},
             {Default, kNone, ramp, 0, 8, "40 60 80 100 120 160 200 200/128"},
             {Default, kHalf, {100, 200}, 0, 8, ". 100/64 100/191 125 175 200/191 200/64 .", 1},
             // No prefilter: the samples lie at 0 and 4, or at 1.5 and 5.5.
             {Default, kNone, {10, 99, 99, 99, 20, 99, 99, 99}, 0, 2, "10 20"},
             {Default, kHalf, {0, 10, 30, 0, 0, 50, 70, 0}, 0, 2, "20 60"},
             // Centred, and not faded; what lies around the picture cuts the result.
             {HighQuality, kNone, ramp, 0, 8, "36 47 68 89 107 140 186 207"},
             {HighQuality, kHalf, ramp, 0, 8, "36 47 68 89 107 140 186 207"},
             {HighQuality, kHalf, {40, 80, 120, 200, 200, 120, 80, 40}, 0, 4, "60 162 162 60"},
             {HighQuality, kHalf, {100, 200}, 0, 8, ". . 91 121 179 209 . .", 1},
             // 255 x (0.2266 - 0.0234) beside the step; its undershoot and overshoot are cut.
             {HighQuality, kNone, {0, 0, 255, 255}, 0, 8, "0 0 0 52 203 255 255 255"},
         }) {
        const Bitmap image = GreyRow(picture), turned = Transposed(image);
        const int size = image.Width() + 2 * beyond;
        Bitmap row(static_cast<int>(std::ranges::count(drawn, ' ')) + 1, 1);
        Bitmap column = Transposed(row);
        DrawUnclipped(row, image, {{x, 0, width, 1}, {-beyond, 0, size, 1}, mode, offset, {}});
        EXPECT_EQ(Text(row), drawn) << int(mode) << " at " << x << ", " << offset;
        DrawUnclipped(column, turned, {{0, x, 1, width}, {0, -beyond, 1, size}, mode, offset, {}});
        EXPECT_EQ(Text(column), drawn) << int(mode) << " at " << x << ", " << offset;
    }
}

TEST(ImageDrawing, EveryModeCopiesPixelsAtTheirOwnSize) {
    const Bitmap image = Noise(7, 5);
    for (const auto mode : kAllModes) {
        for (const double offset : {kNone, kHalf}) {
            // The source reaches over the picture's right end; the copy over the target's left.
            Bitmap target(9, 9);
            DrawUnclipped(target, image, {{-2, 3, 6, 4}, {3, 1, 6, 4}, mode, offset, {}});
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

TEST(ImageDrawing, SoftEdgesKeepTheirColorWhenShrunk) {
    Bitmap disc(512, 512);
    DrawingContext(disc).FillEllipse(SolidBrush{0xFFFFFFFF}, {6, 6, 500, 500});
    for (const auto mode : {Default, HighQuality}) {
        for (const int small : {256, 48, 16}) {
            Bitmap target(small, small);
            const RectF destination{0, 0, float(small), float(small)};
            DrawUnclipped(target, disc, Whole(disc, destination, mode, kHalf));
            int soft = 0;
            for (const Argb pixel : PixelsOf(target)) {
                EXPECT_TRUE(AlphaOf(pixel) == 0 ? pixel == 0 : BlueOf(pixel) == 255) << pixel;
                soft += AlphaOf(pixel) > 0 && AlphaOf(pixel) < 255;
            }
            EXPECT_GT(soft, mode == HighQuality ? small : -1) << small;
        }
    }
    const Bitmap opaque(512, 512, PixelFormat::Rgb24);
    Bitmap full(48, 48);
    DrawUnclipped(full, opaque, Whole(opaque, {0, 0, 48, 48}, HighQuality, kNone));
    EXPECT_THAT(PixelsOf(full), ::testing::Each(0xFF000000));
}

TEST(ImageDrawing, AWholeNumberedRightEndIsNeverCrossed) {
    const Bitmap image = GreyRow({9, 9, 9, 9, 9, 9, 9});
    for (const auto mode : kAllModes) {
        Bitmap row(21, 1);
        DrawUnclipped(row, image, Whole(image, {-9, 0, 29, 1}, mode, kNone));
        EXPECT_EQ(row.GetPixel(20, 0), Argb{0}) << int(mode);
        EXPECT_NE(row.GetPixel(17, 0), Argb{0}) << int(mode);
    }
}

TEST(ImageDrawing, ClippedPixelsAreThoseOfTheWholeDrawing) {
    const Bitmap image = Noise(13, 11);
    const Bitmap background = Noise(40, 30);
    const std::vector<RectI> clip = {{0, 0, 3, 2}, {5, 0, 30, 2}, {4, 9, 1, 12}, {7, 9, 33, 12}};
    Bitmap inside(40, 30);
    DrawingContext(inside).FillRegion(SolidBrush{0xFF000000}, Region::FromPixelRects(clip));
    const RectF destinations[] = {
        {-3.3F, -2.7F, 50.1F, 20},
        {6, 1, 13, 11},
        {5.5F, 0.5F, 7.25F, 25},
        {0, -9, 40, 60},  // the first rows of two rectangles show the same row of the picture
    };
    for (const auto mode : kAllModes) {
        for (const RectF& destination : destinations) {
            for (const double offset : {kNone, kHalf}) {
                const ImageDrawing drawing{
                    destination, {-1, 2, 13, 11}, mode, offset, {OpacityMatrix(0.75F)}};
                Bitmap whole = background, clipped = background;
                DrawUnclipped(whole, image, drawing);
                EXPECT_FALSE(whole.SharesPixelsWith(background));
                DrawImageOn(clipped, image, drawing, clip);
                for (int y = 0; y < 30; ++y) {
                    for (int x = 0; x < 40; ++x)
                        ASSERT_EQ(clipped.Row(y)[x],
                                  (inside.Row(y)[x] ? whole : background).Row(y)[x])
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
        Bitmap bitmap = Noise(16, 16), expected = bitmap;
        const ImageDrawing drawing = Whole(bitmap, {3, 5, 16, 10}, mode, kHalf);
        DrawUnclipped(expected, Noise(16, 16), drawing);
        DrawUnclipped(bitmap, bitmap, drawing);
        EXPECT_EQ(PixelsOf(bitmap), PixelsOf(expected));
    }
}

// Runs of pictures that cover the same, others in between, one of them the target itself.
TEST(ImageDrawing, PicturesDrawnTogetherAreThoseDrawnInTurn) {
    std::mt19937 random(1);
    const Bitmap ground = testing::RandomPicture(random, 40, 30);
    std::vector<Bitmap> images;
    std::vector<ImageDrawing> drawings;
    for (int i = 0; i < 40; ++i) {
        images.push_back(i == 20 ? ground : testing::RandomPicture(random, 40, 30));
        const auto moved = static_cast<float>(i % 13 == 12 ? i - 20 : 0);
        drawings.push_back(Whole(images.back(), {moved, 0, 40, 30}, Default, kHalf));
        if (i % 3 != 0)
            drawings.back().Attributes.Matrix = OpacityMatrix(static_cast<float>(i) / 40);
        if (i == 15)
            drawings.back().Attributes.Gamma = 2.0F;
        if (i == 30)
            drawings.back().Destination.Width = 35;
    }
    for (const std::vector<RectI>& clip :
         {std::vector<RectI>{{0, 0, 40, 30}}, {{3, 2, 20, 5}, {30, 2, 4, 5}, {1, 9, 38, 1}}}) {
        Bitmap together = ground, inTurn = ground;
        DrawImagesOn(together, images, drawings, clip);
        for (std::size_t i = 0; i < images.size(); ++i)
            DrawImageOn(inTurn, images[i], drawings[i], clip);
        EXPECT_TRUE(testing::SamePixels(together, inTurn));
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
    const Bitmap image = Noise(4, 4);
    const RectF here{0, 0, 8, 8};
    const RectI whole = WholeOf(image);
    const std::pair<RectF, RectI> cases[] = {
        {{0, 0, 0, 4}, whole},
        {{4, 4, -4, 4}, whole},
        {{NAN, 0, 4, 4}, whole},
        {{0, 0, 4, NAN}, whole},
        {{0, 0, INFINITY, 4}, whole},
        {{-INFINITY, 0, 4, 4}, whole},
        {{1e30F, 0, 4, 4}, whole},
        {{0.75F, 0.75F, 1e-30F, 1e-30F}, whole},
        {here, {0, 0, 0, 4}},
        {here, {0, 0, -4, 4}},
        {here, {4, 0, 4, 4}},
        {here, {INT_MAX, INT_MIN, INT_MAX, INT_MAX}},
        {{0, 0, float(INT_MAX), 4}, {INT_MIN, 0, INT_MAX, 4}},
    };
    for (const auto mode : kAllModes) {
        for (const auto& [destination, source] : cases) {
            Bitmap target(8, 8);
            DrawUnclipped(target, image, {destination, source, mode, kHalf, {}});
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
            Bitmap row(3, 1);
            DrawUnclipped(row, image,
                          Whole(image, {-0.375F * size, -size / 2, size, size}, mode, kHalf));
            EXPECT_EQ(Text(row), "20 20 20") << int(mode);
        }
    }
    // The last pixel takes part by less than the numbers can tell, and has no weight left.
    Bitmap sliver(4, 1);
    const Bitmap three = GreyRow({10, 20, 30});
    DrawUnclipped(sliver, three, Whole(three, {4.5e-16F, 0, 3, 1}, HighQuality, kNone));
    EXPECT_EQ(Text(sliver), ". 20 30 .");
    // A whole picture in one pixel, however small that pixel's share.
    Bitmap target(1, 1);
    const Bitmap wide(kMaxBitmapSide, 2, PixelFormat::Rgb24);
    DrawUnclipped(target, wide, Whole(wide, {0.5F, 0.5F, 1e-10F, 1e-10F}, HighQuality, kHalf));
    EXPECT_EQ(target.GetPixel(0, 0), Argb{0xFF000000});
}

TEST(Resampling, RowsAddUpAlikeWithEveryInstructionSet) {
    constexpr std::size_t kStride = 80;
    std::mt19937 random(1);
    for (const std::size_t width : {1, 2, 3, 7, 16, 61}) {
        std::vector<float> weights(width % 5 + 1);
        std::ranges::generate(weights, [&] { return float(random() % 1200) / 1000 - 0.2F; });
        std::vector<Argb> pixels(kStride * weights.size());
        std::ranges::generate(pixels, random);
        std::vector<float> expected(4 * width);
        for (std::size_t row = 0; row < weights.size(); ++row) {
            for (std::size_t x = 0; x < width; ++x) {
                const Argb color = pixels[row * kStride + x];
                const float share = static_cast<float>(AlphaOf(color)) * weights[row];
                for (int i = 0; i < 3; ++i)
                    expected[4 * x + i] += share * static_cast<float>(color >> 8 * i & 0xFF);
                expected[4 * x + 3] += share;
            }
        }
        testing::WithEachInstructionSet([&] {
            std::vector<float> sums(4 * width, -1);
            AddUpRows(pixels.data(), kStride, weights, width, sums.data());
            EXPECT_EQ(sums, expected) << width;
        });
    }
}

TEST(Resampling, ColumnsAddUpToLimitedStraightPixels) {
    // Two columns: premultiplied blue, green and red, and alpha.
    const std::vector<float> sums = {100 * 10.0F, 100 * 20.0F, 100 * 30.0F, 100,
                                     200 * 40.0F, 200 * 50.0F, 200 * 60.0F, 200};
    const std::vector<float> weights = {1, 0.5F, 0.25F, 1, 1, -0.5F, 0.5F, 0.004F};
    const struct {
        Taps Columns;
        Argb Pixel;
    } cases[] = {
        {{7, 1, 0}, MakeArgb(100, 30, 20, 10)},
        {{8, 1, 1}, MakeArgb(100, 60, 50, 40)},
        {{7, 2, 1}, MakeArgb(100, 45, 35, 25)},
        {{7, 2, 3}, MakeArgb(255, 59, 47, 35)},  // alpha 300 is cut, and 15000 / 255 = 58.8
        {{7, 2, 5}, MakeArgb(50, 90, 80, 70)},
        {{7, 1, 5}, 0},  // negative
        {{7, 1, 7}, 0},  // alpha 0.4
        {{7, 0, 0}, 0},
    };
    for (const auto& test : cases) {
        testing::WithEachInstructionSet([&] {
            Argb drawn = 1;
            AddUpColumns(sums.data(), 7, {&test.Columns, 1}, weights.data(), &drawn);
            EXPECT_EQ(drawn, test.Pixel) << test.Columns.Count << ", " << test.Columns.Weights;
        });
    }
}

}  // namespace
}  // namespace orbelle::graphics
