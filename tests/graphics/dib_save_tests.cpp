#include "graphics/dib_save.h"

#include <gtest/gtest.h>

#include <utility>

namespace orbelle::graphics {
namespace {

TEST(DIBSave, ARefusedSizeKeepsThePictureAndTakesTheNumbers) {
    DIBSave surface;
    surface.CreateBlankMemory(0, 0, PixelFormat::Argb32);
    EXPECT_FALSE(surface.MemGraphics.has_value());

    surface.CreateBlankMemory(3, 5, PixelFormat::Argb32);
    EXPECT_EQ(surface.new_Img.Width(), 5);
    EXPECT_EQ(surface.new_Img.Height(), 3);
    EXPECT_EQ(surface.NewWidth, 5);
    EXPECT_EQ(surface.NewHeight, 3);
    surface.ClearScreen(0x80112233);
    surface.CreateBlankMemory(0, -7, PixelFormat::Argb32);
    EXPECT_EQ(surface.NewWidth, -7);
    EXPECT_EQ(surface.NewHeight, 0);
    EXPECT_EQ(surface.new_Img.GetPixel(4, 2), 0x80112233u);
}

TEST(DIBSave, ClearScreenSetsAndDrawBackgroundBlends) {
    DIBSave surface;
    surface.CreateBlankMemory(2, 2, PixelFormat::Argb32);
    surface.ClearScreen(0xFF204060);
    surface.DrawBackground(0);
    EXPECT_EQ(surface.new_Img.GetPixel(1, 1), 0xFF204060u);
    surface.DrawBackground(0x80C0A010);
    EXPECT_EQ(surface.new_Img.GetPixel(1, 1), 0xFF707038u);
    surface.ClearScreen(0x80C0A010);
    EXPECT_EQ(surface.new_Img.GetPixel(1, 1), 0x80C0A010u);
    surface.ClearScreen(0);
    EXPECT_EQ(surface.new_Img.GetPixel(0, 0), 0u);

    surface.CreateBlankMemory(2, 2, PixelFormat::Rgb24);
    surface.ClearScreen(0x80C0A010);
    EXPECT_EQ(surface.new_Img.GetPixel(1, 1), 0xFFC0A010u);
}

TEST(DIBSave, TakesOverAPictureAndLetsGo) {
    DIBSave surface;
    surface.CreateBlankMemoryFromImg(Bitmap(4, 6));
    EXPECT_EQ(surface.NewWidth, 4);
    EXPECT_EQ(surface.NewHeight, 6);
    surface.ClearScreen(0xFFFFFFFF);
    EXPECT_EQ(surface.new_Img.GetPixel(3, 5), 0xFFFFFFFFu);

    surface.ClearIMG();
    EXPECT_TRUE(surface.new_Img.IsEmpty());
    ASSERT_TRUE(surface.MemGraphics.has_value());
    surface.ClearScreen(0xFFFFFFFF);
    surface.DrawBackground(0xFFFFFFFF);
    for (int i = 0; i < 2; ++i) {
        surface.Destroy();
        EXPECT_FALSE(surface.MemGraphics.has_value());
        surface.ClearScreen(0xFFFFFFFF);
        surface.DrawBackground(0xFFFFFFFF);
    }
}

TEST(DIBSave, WidthHeightAndFirstLAreNumbersOfTheirOwn) {
    DIBSave surface;
    surface.SetFirstL(true);
    EXPECT_FALSE(surface.FirstL());
    surface.SetWidth(2.5f);
    surface.SetHeight(3.5f);
    EXPECT_EQ(surface.Width(), 2);
    EXPECT_EQ(surface.Height(), 4);
    EXPECT_TRUE(surface.FirstL());
    EXPECT_EQ(surface.NewWidth, 0);
}

TEST(DIBSave, CreateRgnGrowsItsRectanglesWithTheDistance) {
    const struct {
        float X, Y;
        bool Inside;
    } cases[] = {{2, 3, true},      {4, 6, true},  {4.49f, 6.49f, true}, {1.5f, 2.5f, true},
                 {1.49f, 3, false}, {5, 6, false}, {4, 7, false},        {2, 2, false}};
    for (const auto& test : cases) {
        DIBSave surface;
        surface.CreateBlankMemory(8, 8, PixelFormat::Argb32);
        surface.new_Img.SetPixel(2, 3, 0x83FFFFFF);
        surface.new_Img.SetPixel(7, 7, 0x82FFFFFF);
        EXPECT_EQ(surface.CreateRgn(130, test.X, test.Y), test.Inside) << test.X << "," << test.Y;
        EXPECT_EQ(surface.new_Img.GetPixel(2, 3), 0x83000000u);
        EXPECT_EQ(surface.new_Img.GetPixel(7, 7), 0x82FFFFFFu);
    }
    DIBSave empty;
    EXPECT_FALSE(empty.CreateRgn(0, 0, 0));
}

}  // namespace
}  // namespace orbelle::graphics
