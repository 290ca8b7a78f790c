#include "graphics/bitmap.h"

#include <gtest/gtest.h>

#include <numeric>

#include "graphics/rotate_flip.h"

namespace orbelle::graphics {
namespace {

TEST(Bitmap, NewOnesAreZeroAndRefuseSizesOutsideTheLimits) {
    Bitmap bitmap(3, 2);
    EXPECT_EQ(bitmap.GetPixel(2, 1), Argb{0});
    EXPECT_EQ(bitmap.GetPixel(3, 1), std::nullopt);
    EXPECT_FALSE(bitmap.SetPixel(-1, 0, 1));
    for (auto [width, height] : {std::pair{0, 5},
                                 {5, 0},
                                 {-1, 5},
                                 {kMaxBitmapSide + 1, 1},
                                 {kMaxBitmapSide, kMaxBitmapSide}})
        EXPECT_TRUE(Bitmap(width, height).IsEmpty()) << width << " x " << height;
}

TEST(Bitmap, ACopyKeepsItsPixelsWhenTheOtherIsWritten) {
    Bitmap first(2, 2);
    Bitmap second = first;
    EXPECT_TRUE(second.SharesPixelsWith(first));
    second.SetPixel(0, 0, 0x55667788);
    EXPECT_FALSE(second.SharesPixelsWith(first));
    EXPECT_EQ(first.GetPixel(0, 0), Argb{0});
}

TEST(Bitmap, AMovedFromOneIsEmptyInEveryRespect) {
    Bitmap picture(3, 2, PixelFormat::Rgb24);
    const Bitmap taken = std::move(picture);
    EXPECT_TRUE(picture.SharesPixelsWith(Bitmap()));
    EXPECT_EQ(std::pair(picture.Width(), picture.Height()), std::pair(0, 0));
    EXPECT_EQ(std::pair(taken.Height(), taken.Format()), std::pair(2, PixelFormat::Rgb24));
}

TEST(Bitmap, AreasLieInsideAndDropAlphaIn24Bits) {
    Bitmap bitmap(4, 4);
    EXPECT_TRUE(bitmap.CloneArea(1, 1, 4, 4).IsEmpty());
    EXPECT_TRUE(bitmap.CloneArea(0, 0, 0, 4).IsEmpty());
    EXPECT_TRUE(bitmap.CloneArea(-1, 0, 2, 2).IsEmpty());
    bitmap.SetPixel(2, 3, 0x00332211);
    EXPECT_EQ(bitmap.CloneArea(1, 2, 3, 2).GetPixel(1, 1), Argb{0x00332211});
    Bitmap opaque = bitmap.CloneArea(1, 2, 3, 2, PixelFormat::Rgb24);
    EXPECT_EQ(opaque.GetPixel(1, 1), Argb{0xFF332211});
    opaque.SetPixel(0, 0, 0x00010203);
    EXPECT_EQ(opaque.GetPixel(0, 0), Argb{0xFF010203});
}

TEST(Bitmap, CopyBitmapKeepsColorsUnderAlphaZeroAndFillsUpWithZero) {
    Bitmap bitmap(2, 2);
    bitmap.SetPixel(1, 1, 0x00ABCDEF);
    EXPECT_TRUE(CopyBitmap(bitmap, 2, 2).SharesPixelsWith(bitmap));
    const Bitmap larger = CopyBitmap(bitmap, 3, 4);
    EXPECT_EQ(larger.GetPixel(1, 1), Argb{0x00ABCDEF});
    EXPECT_EQ(larger.GetPixel(2, 3), Argb{0});
    EXPECT_EQ(CopyBitmap(bitmap, 1, 1).Width(), 1);
    EXPECT_TRUE(CopyBitmap(bitmap, 0, 0).IsEmpty());
}

// Larger than the squares that are turned one by one; the numbers are colours under alpha 0.
TEST(ImageRotateFlip, MovesEveryPixelAndNoCopyOfThePicture) {
    constexpr int kWidth = 37, kHeight = 50;
    Bitmap copy(kWidth, kHeight);
    std::iota(copy.MutablePixels(), copy.MutablePixels() + kWidth * kHeight, Argb{0});
    for (const auto type : {RotateFlipType::Rotate90FlipNone, RotateFlipType::RotateNoneFlipX,
                            RotateFlipType::Rotate90FlipX, RotateFlipType::RotateNoneFlipY}) {
        Bitmap picture = copy;
        ImageRotateFlip(picture, type);
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const auto [toX, toY] =
                    type == RotateFlipType::Rotate90FlipNone  ? std::pair(kHeight - 1 - y, x)
                    : type == RotateFlipType::Rotate90FlipX   ? std::pair(y, x)
                    : type == RotateFlipType::RotateNoneFlipX ? std::pair(kWidth - 1 - x, y)
                                                              : std::pair(x, kHeight - 1 - y);
                ASSERT_EQ(picture.GetPixel(toX, toY), copy.Row(y)[x]) << int(type);
                ASSERT_EQ(copy.Row(y)[x], static_cast<Argb>(y * kWidth + x));
            }
        }

        Bitmap opaque(3, 2, PixelFormat::Rgb24), empty;
        ImageRotateFlip(opaque, type);
        EXPECT_EQ(opaque.Format(), PixelFormat::Rgb24);
        EXPECT_EQ(opaque.GetPixel(1, 1), 0xFF000000U);
        ImageRotateFlip(empty, type);
        EXPECT_TRUE(empty.IsEmpty());
    }
}

}  // namespace
}  // namespace orbelle::graphics
