#include "graphics/bitmap.h"

#include <gtest/gtest.h>

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
                                 {kMaxBitmapSide, kMaxBitmapSide}}) {
        EXPECT_TRUE(Bitmap(width, height).IsEmpty()) << width << " x " << height;
    }
}

TEST(Bitmap, ACopyKeepsItsPixelsWhenTheOtherIsWritten) {
    Bitmap first(2, 2);
    first.SetPixel(0, 0, 0x11223344);
    Bitmap second = first;
    EXPECT_TRUE(second.SharesPixelsWith(first));
    second.SetPixel(0, 0, 0x55667788);
    EXPECT_FALSE(second.SharesPixelsWith(first));
    EXPECT_EQ(first.GetPixel(0, 0), Argb{0x11223344});
    EXPECT_EQ(second.GetPixel(0, 0), Argb{0x55667788});
}

TEST(Bitmap, AMovedFromOneIsEmptyInEveryRespect) {
    Bitmap picture(3, 2, PixelFormat::Rgb24);
    Bitmap taken = std::move(picture);
    EXPECT_TRUE(picture.SharesPixelsWith(Bitmap()));
    EXPECT_EQ(picture.Width(), 0);
    EXPECT_EQ(picture.Height(), 0);
    picture = std::move(taken);
    EXPECT_TRUE(taken.IsEmpty());
    EXPECT_EQ(taken.Width(), 0);
    EXPECT_EQ(taken.Format(), PixelFormat::Argb32);
    EXPECT_EQ(picture.Height(), 2);
    EXPECT_EQ(picture.Format(), PixelFormat::Rgb24);
}

TEST(Bitmap, CloneAreaRefusesWhatLiesOutside) {
    Bitmap bitmap(4, 4);
    EXPECT_TRUE(bitmap.CloneArea(1, 1, 4, 4).IsEmpty());
    EXPECT_TRUE(bitmap.CloneArea(0, 0, 0, 4).IsEmpty());
    EXPECT_TRUE(bitmap.CloneArea(-1, 0, 2, 2).IsEmpty());
    bitmap.SetPixel(2, 3, 0x80332211);
    const Bitmap area = bitmap.CloneArea(1, 2, 3, 2);
    EXPECT_EQ(area.GetPixel(1, 1), Argb{0x80332211});
    EXPECT_EQ(area.GetPixel(0, 1), Argb{0});
}

TEST(Bitmap, TwentyFourBitsKeepColorBytesAndDropAlpha) {
    Bitmap bitmap(2, 1);
    bitmap.SetPixel(0, 0, 0x80332211);
    bitmap.SetPixel(1, 0, 0x00FFFFFF);
    Bitmap opaque = bitmap.CloneArea(0, 0, 2, 1, PixelFormat::Rgb24);
    EXPECT_EQ(opaque.GetPixel(0, 0), Argb{0xFF332211});
    EXPECT_EQ(opaque.GetPixel(1, 0), Argb{0xFFFFFFFF});
    opaque.SetPixel(0, 0, 0x00010203);
    EXPECT_EQ(opaque.GetPixel(0, 0), Argb{0xFF010203});
}

TEST(Bitmap, CopyBitmapKeepsColorsUnderAlphaZeroAndFillsUpWithZero) {
    Bitmap bitmap(2, 2);
    bitmap.SetPixel(1, 1, 0x00ABCDEF);
    EXPECT_TRUE(CopyBitmap(bitmap, 2, 2).SharesPixelsWith(bitmap));
    const Bitmap larger = CopyBitmap(bitmap, 3, 4);
    EXPECT_EQ(larger.Width(), 3);
    EXPECT_EQ(larger.Height(), 4);
    EXPECT_EQ(larger.GetPixel(1, 1), Argb{0x00ABCDEF});
    EXPECT_EQ(larger.GetPixel(2, 3), Argb{0});
    EXPECT_EQ(CopyBitmap(bitmap, 1, 1).Width(), 1);
    EXPECT_TRUE(CopyBitmap(bitmap, 0, 0).IsEmpty());
}

}  // namespace
}  // namespace orbelle::graphics
