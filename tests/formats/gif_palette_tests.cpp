#include "formats/gif_palette.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <random>

#include "formats/octree.h"
#include "formats/plain_octree.h"
#include "graphics/codecs/image_files.h"
#include "support/pictures.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::IndexedBitmap;
using ::testing::ElementsAre;
using testing::PixelsOf;
using testing::RowOf;
using testing::SamePixels;

Bitmap Drawn(int width, int height, const std::function<Argb(int, int)>& colorAt) {
    Bitmap image(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.SetPixel(x, y, colorAt(x, y));
    return image;
}

TEST(FlattenToKeyColor, KeepsBlackForWhatIsTransparent) {
    const struct {
        Argb From;
        std::uint8_t Threshold;
        Argb To;
    } cases[] = {
        {0x81FF8040, 130, 0xFF000000},  // 129
        {0x82FF8040, 130, 0xFFFF8040},  // 130: opaque, not mixed with anything
        {0xFF000000, 130, 0xFF050505}, {0xFF090909, 130, 0xFF050505}, {0xFF0A0000, 130, 0xFF0A0000},
        {0xFF00090A, 130, 0xFF00090A}, {0x00FFFFFF, 130, 0xFF000000}, {0x00FFFFFF, 0, 0xFFFFFFFF},
        {0x00000000, 0, 0xFF050505},   {0xFEFFFFFF, 255, 0xFF000000}, {0xFFFFFFFF, 255, 0xFFFFFFFF},
    };
    for (const auto& [from, threshold, to] : cases) {
        const Bitmap flat = FlattenToKeyColor(RowOf({from}), threshold);
        EXPECT_EQ(flat.GetPixel(0, 0), to) << std::hex << from;
        EXPECT_EQ(flat.Format(), graphics::PixelFormat::Rgb24);
    }
}

TEST(PaletteImageGif, UpTo256ColorsStayExact) {
    // Depth first: red counts most, then green, then blue, bit by bit.
    const IndexedBitmap four =
        PaletteImageGif(RowOf({0xFFFF0000, 0xFF0000FF, 0xFF00FF00, 0xFF0000FF, 0xFF0000FE}), false);
    EXPECT_THAT(four.Indexes, ElementsAre(3, 1, 2, 1, 0));
    EXPECT_THAT(std::vector<Argb>(four.Palette.begin(), four.Palette.begin() + 5),
                ElementsAre(0xFF0000FE, 0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0u));

    std::mt19937 random(1);
    const Bitmap many = Drawn(16, 16, [&](int, int) { return 0xFF000000 | random(); });
    const IndexedBitmap all = PaletteImageGif(many, false);
    EXPECT_TRUE(SamePixels(all.ToBitmap(), many));
    EXPECT_EQ(PlainOctree(many).Palette.size(), 256u);
}

TEST(PaletteImageGif, OneEntryBecomesTransparent) {
    const struct {
        std::vector<Argb> Colors;
        bool UseTransparency;
        std::vector<Argb> Result;
    } cases[] = {
        {{0xFF000000, 0xFFFFFFFF}, true, {0x00000000, 0xFFFFFFFF}},
        {{0xFF000000, 0xFFFFFFFF}, false, {0xFF000000, 0xFFFFFFFF}},
        {{0xFF000000, 0xFF040404}, true, {0x00000000, 0xFF040404}},  // only the first
        {{0xFF040404, 0xFF050505}, true, {0x00040404, 0xFF050505}},
        {{0xFF040405, 0xFF800000}, true, {0xFF040405, 0xFF800000}},
    };
    for (const auto& [colors, useTransparency, result] : cases)
        EXPECT_EQ(PixelsOf(PaletteImageGif(RowOf(colors), useTransparency).ToBitmap()), result);
}

TEST(PaletteImageGif, AgreesWithThePlainForm) {
    std::mt19937 random(7);
    int reductions = 0;
    for (int round = 0; round < 300; ++round) {
        const int width = 1 + static_cast<int>(random() % 64);
        const int height = 1 + static_cast<int>(random() % 64);
        // Few or many colours, spread or close together, in noise or in slopes.
        const Argb mask =
            std::vector<Argb>{0xFFFFFF, 0xF0F0F0, 0x1F1F1F, 0xFF00, 0x0F0F3F}[round % 5];
        const Argb base = random() & ~mask;
        const unsigned slope = random() % 9;
        const bool noise = round % 3 == 0;
        const Bitmap image = Drawn(width, height, [&](int x, int y) {
            const unsigned ux = x, uy = y;
            const Argb color = noise ? static_cast<Argb>(random())
                                     : graphics::MakeArgb(0, ux * slope & 255, uy * 4 & 255,
                                                          (ux * uy + random() % 4) & 255);
            return (color & mask) | base | 0xFF000000;
        });
        const PlainOctree plain(image);
        reductions += plain.Reductions;
        const IndexedBitmap indexed = PaletteImageGif(image, false);
        for (int i = 0; i < width * height; ++i)
            ASSERT_EQ(indexed.Indexes[i], plain.GetPaletteIndex(image.Pixels()[i])) << round;
        std::vector<Argb> palette = plain.Palette;
        palette.resize(256);
        ASSERT_TRUE(std::ranges::equal(indexed.Palette, palette)) << round;
    }
    EXPECT_GT(reductions, 1000);
}

TEST(Octree, ColorsNeverAddedFindALeafOrTheFirst) {
    std::mt19937 random(3);
    for (unsigned count : {0u, 1u, 3u, 40u, 3000u}) {
        std::vector<Argb> colors(count);
        std::ranges::generate(colors, [&] { return 0xFF000000 | random(); });
        const Bitmap image = count > 0 ? RowOf(colors) : Bitmap();
        const PlainOctree plain(image);
        Octree tree;
        for (unsigned i = count; i > 0; --i)
            tree.AddColor(colors[i - 1]);
        tree.NumberLeaves();
        for (int i = 0; i < 2000; ++i) {
            const auto color = static_cast<Argb>(random());
            ASSERT_EQ(tree.GetPaletteIndex(color), plain.GetPaletteIndex(color)) << count;
        }
    }
    // The search stands at child 2 after the first level, so child 0 below it is passed over.
    Octree tree;
    for (Argb color : {0xFF00FF00, 0xFFFFFFFF, 0xFF008000})
        tree.AddColor(color);
    tree.NumberLeaves();
    EXPECT_EQ(tree.GetPaletteIndex(0xFFFF0000), 1);
}

TEST(EncodeGifPicture, ATransparentBackgroundComesBackAsOne) {
    const Bitmap surface = RowOf({0x00FFFFFF, 0x81FF0000, 0x82FF0000, 0xFF000000, 0xFF00C0FF});
    const struct {
        bool Transparent;
        std::vector<Argb> Result;
    } cases[] = {
        {true, {0, 0, 0xFFFF0000, 0xFF050505, 0xFF00C0FF}},
        {false, {0xFFFFFFFF, 0xFFFF0000, 0xFFFF0000, 0xFF000000, 0xFF00C0FF}},
    };
    for (const auto& [transparent, result] : cases) {
        const Bitmap back = graphics::DecodeImage(EncodeGifPicture(surface, transparent, 130));
        EXPECT_EQ(PixelsOf(back), result);
    }
    const Bitmap nothing = graphics::DecodeImage(EncodeGifPicture(Bitmap(3, 2), true, 130));
    EXPECT_TRUE(SamePixels(nothing, Bitmap(3, 2)));
    EXPECT_TRUE(EncodeGifPicture(Bitmap(), true, 130).empty());
}

}  // namespace
}  // namespace orbelle::formats
