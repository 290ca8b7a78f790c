#include "filters/size_recipes.h"

#include <gtest/gtest.h>

#include <random>

#include "filters/shrink_to_size.h"
#include "filters/snap_edges.h"
#include "graphics/geometry.h"
#include "support/instruction_sets.h"
#include "support/pictures.h"
#include "support/random_pictures.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using testing::AlphaRow;
using testing::FilledPicture;
using testing::PictureOf;
using testing::PixelsOf;
using testing::SamePixels;

constexpr Argb kGrey = 0xFF646464;      // 100
constexpr Argb kOutlined = 0xFF3C3C3C;  // 0.6 x 100

// A picture with a rectangle of one colour.
Bitmap WithRect(int width, int height, const graphics::RectI& rect, Argb color = kGrey) {
    Bitmap picture(width, height);
    for (int y = rect.Y; y < rect.Y + rect.Height; ++y)
        for (int x = rect.X; x < rect.X + rect.Width; ++x)
            picture.SetPixel(x, y, color);
    return picture;
}

TEST(SizeRecipes, AreFoundByTheirNames) {
    for (const SizeRecipe recipe : kSizeRecipes)
        EXPECT_EQ(FindSizeRecipe(NameOf(recipe)), recipe);
    EXPECT_EQ(FindSizeRecipe("fill-outline"), SizeRecipe::FillOutline);
    EXPECT_EQ(FindSizeRecipe("snapped"), SizeRecipe::Snapped);
    EXPECT_EQ(FindSizeRecipe("Plain"), std::nullopt);
    EXPECT_EQ(FindSizeRecipe(""), std::nullopt);
}

TEST(SizeRecipes, AnyPictureGivesOneOfTheSize) {
    std::mt19937 random(13);
    Bitmap faint = WithRect(64, 64, {20, 20, 5, 5}, 0x01FFFFFF);
    const Bitmap masters[] = {Bitmap(),
                              Bitmap(1, 1),
                              Bitmap(300, 300),
                              FilledPicture(1, 1, kGrey),
                              FilledPicture(1, 700, kGrey),
                              FilledPicture(700, 1, kGrey),
                              FilledPicture(512, 512, 0xFFFFFFFF),
                              FilledPicture(3, 3, kGrey),
                              WithRect(512, 512, {511, 511, 1, 1}),
                              faint,
                              testing::RandomPicture(random, 257, 100),
                              testing::RandomPicture(random, 9, 31)};
    for (const Bitmap& master : masters) {
        for (const SizeRecipe recipe : kSizeRecipes) {
            for (const int size : {8, 16, 33, 256}) {
                const Bitmap made = ApplyRecipe(recipe, master, size);
                EXPECT_EQ(made.Width(), size) << NameOf(recipe);
                EXPECT_EQ(made.Height(), size) << NameOf(recipe);
            }
            EXPECT_TRUE(ApplyRecipe(recipe, master, 0).IsEmpty());
            EXPECT_TRUE(ApplyRecipe(recipe, master, -8).IsEmpty());
        }
    }
    // Without anything to see they show nothing.
    for (const SizeRecipe recipe : kSizeRecipes)
        EXPECT_TRUE(SamePixels(ApplyRecipe(recipe, Bitmap(300, 300), 8), Bitmap(8, 8)));
    // What is opaque everywhere stays so.
    for (const SizeRecipe recipe : kSizeRecipes)
        for (const Argb color : PixelsOf(ApplyRecipe(recipe, FilledPicture(512, 512, kGrey), 16)))
            ASSERT_EQ(graphics::AlphaOf(color), 255U);
}

TEST(SizeRecipes, EveryMachineMakesTheSame) {
    std::mt19937 random(7);
    const Bitmap master = testing::RandomPicture(random, 200, 133);
    for (const SizeRecipe recipe : kSizeRecipes) {
        const Bitmap usual = ApplyRecipe(recipe, master, 24);
        testing::WithEachInstructionSet(
            [&] { EXPECT_TRUE(SamePixels(ApplyRecipe(recipe, master, 24), usual)); });
    }
}

TEST(SizeRecipes, SharperTakesColoursFromTheMeanOfTheNeighbours) {
    // As large as the size, so that nothing is shrunk: 150 between a column of 100 and one of 200.
    Bitmap master(8, 8);
    for (int y = 0; y < 8; ++y) {
        master.SetPixel(3, y, 0xFF646464);
        master.SetPixel(4, y, 0xFF969696);
        master.SetPixel(5, y, 0x80C8C8C8);
    }
    const Bitmap sharp = ApplyRecipe(SizeRecipe::Sharper, master, 8);
    EXPECT_EQ(AlphaRow(sharp, 4), (std::vector{0, 0, 0, 255, 255, 128, 0, 0}));
    // (2 x 100 + 150) / 3 = 116.67; 100 - 1.2 x 16.67 = 80
    EXPECT_EQ(sharp.GetPixel(3, 4), 0xFF505050);
    // (255 (100 + 2 x 150) + 128 x 200) / (255 x 3 + 128) = 142.89; 150 + 1.2 x 7.11 = 158.5
    EXPECT_EQ(sharp.GetPixel(4, 4), 0xFF9F9F9F);
    // (255 x 150 + 2 x 128 x 200) / (255 + 2 x 128) = 175.05; 200 + 1.2 x 128 / 255 x 24.95 =
    // 215.03
    EXPECT_EQ(sharp.GetPixel(5, 4), 0x80D7D7D7);
    EXPECT_EQ(sharp.GetPixel(2, 4), 0U);
}

TEST(SizeRecipes, FillStretchesTheVisibleBoxOverTheSquare) {
    // 3 x 2 in a larger picture: 9 x 6 in a square of 9, with one row above and two below.
    Bitmap master = WithRect(40, 30, {7, 5, 3, 2});
    master.SetPixel(30, 20, 0x0F000000);  // too faint to count
    const Bitmap filled = ApplyRecipe(SizeRecipe::Fill, master, 9);
    EXPECT_TRUE(SamePixels(filled, WithRect(9, 9, {0, 1, 9, 6})));
    // Shrunk: 60 x 30 becomes 8 x 4.
    EXPECT_TRUE(SamePixels(ApplyRecipe(SizeRecipe::Fill, WithRect(100, 50, {13, 7, 60, 30}), 8),
                           WithRect(8, 8, {0, 2, 8, 4})));
}

TEST(SizeRecipes, OutlinesAreOpaqueDarkAndOnePixelWide) {
    // Nothing is shrunk; alpha 64 is inside, 63 is not.
    Bitmap master = WithRect(8, 8, {2, 2, 4, 3});
    for (int y = 2; y < 5; ++y) {
        master.SetPixel(1, y, 0x40646464);
        master.SetPixel(6, y, 0x3F646464);
    }
    Bitmap expected = WithRect(8, 8, {1, 2, 5, 3}, kOutlined);
    for (int x = 2; x < 5; ++x)
        expected.SetPixel(x, 3, kGrey);
    for (int y = 2; y < 5; ++y)
        expected.SetPixel(6, y, 0x3F646464);
    EXPECT_TRUE(SamePixels(ApplyRecipe(SizeRecipe::Outline, master, 8), expected));

    // The box of the solid part, 40 x 40 without the shadow, over the whole square.
    master = WithRect(64, 64, {10, 10, 44, 44}, 0x7F000000);
    for (int y = 12; y < 52; ++y)
        for (int x = 12; x < 52; ++x)
            master.SetPixel(x, y, kGrey);
    expected = FilledPicture(8, 8, kOutlined);
    for (int y = 1; y < 7; ++y)
        for (int x = 1; x < 7; ++x)
            expected.SetPixel(x, y, kGrey);
    EXPECT_TRUE(SamePixels(ApplyRecipe(SizeRecipe::FillOutline, master, 8), expected));
}

TEST(SizeRecipes, SnappedBringsEdgesOntoPixels) {
    // A bar of one pixel's width, 4 of 128, half on one column of 32 and half on the next. Plain
    // shows two grey columns, snapped one.
    const Bitmap bar = WithRect(128, 128, {42, 0, 4, 128});
    const auto row = AlphaRow(ApplyRecipe(SizeRecipe::Plain, bar, 32), 16);
    EXPECT_GT(row[10], 100);
    EXPECT_EQ(row[10], row[11]);
    // 42 is at 10.5 and goes to 10; 46 at 11.5 then lies at 10 + 22 x 4 / 86 = 11.02.
    EXPECT_TRUE(
        SamePixels(ApplyRecipe(SizeRecipe::Snapped, bar, 32), WithRect(32, 32, {10, 0, 1, 32})));

    // Likewise on a plate, which has no edge to move; 70 is at 17.5 and goes to 18.
    Bitmap plate = FilledPicture(128, 128, 0xFFFFFFFF);
    for (int i = 0; i < 128; ++i) {
        for (int j = 0; j < 4; ++j) {
            plate.SetPixel(42 + j, i, kGrey);
            plate.SetPixel(i, 70 + j, kGrey);
        }
    }
    Bitmap snapped = FilledPicture(32, 32, 0xFFFFFFFF);
    for (int i = 0; i < 32; ++i) {
        snapped.SetPixel(10, i, kGrey);
        snapped.SetPixel(i, 18, kGrey);
    }
    EXPECT_TRUE(SamePixels(ApplyRecipe(SizeRecipe::Snapped, plate, 32), snapped));

    // A plate of 11.5 x 11.5 pixels grows below 32 pixels and goes to the nearest from there on.
    EXPECT_TRUE(
        SamePixels(ApplyRecipe(SizeRecipe::Snapped, WithRect(128, 128, {18, 18, 92, 92}), 16),
                   WithRect(16, 16, {2, 2, 12, 12})));
    EXPECT_TRUE(
        SamePixels(ApplyRecipe(SizeRecipe::Snapped, WithRect(256, 256, {18, 18, 218, 218}), 32),
                   WithRect(32, 32, {2, 2, 28, 28})));

    // A wide picture keeps its proportions and its place; one that is small enough stays.
    const Bitmap wide = FilledPicture(128, 64, kGrey);
    EXPECT_TRUE(
        SamePixels(ApplyRecipe(SizeRecipe::Snapped, wide, 32), WithRect(32, 32, {0, 8, 32, 16})));
    EXPECT_TRUE(SamePixels(ApplyRecipe(SizeRecipe::Snapped, wide, 128), ShrinkToSize(wide, 128)));
}

TEST(ShrinkSnapped, IsTheMeanOfWhatIsCoveredWhereNothingMoves) {
    // Alpha weighs the colours: (255 x 200 + 85 x 40) / 340 = 160.
    Bitmap picture(2, 2);
    picture.SetPixel(0, 0, 0xFFC8C8C8);
    picture.SetPixel(1, 1, 0x55282828);
    EXPECT_EQ(PixelsOf(ShrinkSnapped(picture, 1, 1)), (std::vector<Argb>{0x55A0A0A0}));
    EXPECT_TRUE(ShrinkSnapped(Bitmap(), 4, 4).IsEmpty());
    EXPECT_TRUE(ShrinkSnapped(picture, 0, 4).IsEmpty());
}

}  // namespace
}  // namespace orbelle::filters
