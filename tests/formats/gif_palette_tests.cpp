#include "formats/gif_palette.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>

#include "formats/octree.h"
#include "graphics/codecs/image_files.h"
#include "support/pictures.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::BlueOf;
using graphics::GreenOf;
using graphics::IndexedBitmap;
using graphics::RedOf;
using ::testing::ElementsAre;
using testing::PixelsOf;
using testing::RowOf;
using testing::SamePixels;

// The palette and the indexes by the plainest form of the octree: nodes that own their children,
// sums in the leaves, no memory of earlier colours.
class PlainOctree {
public:
    explicit PlainOctree(const std::vector<Argb>& pixels) {
        for (auto pixel = pixels.rbegin(); pixel != pixels.rend(); ++pixel) {
            Add(*pixel);
            while (leafCount_ > 256)
                ReduceTree();
        }
        BuildPalette(root_);
    }

    int GetPaletteIndex(Argb color) const {
        const Node* node = &root_;
        std::size_t scan = 0;
        for (int level = 0; !node->IsLeaf; ++level) {
            const Node* child = node->Children[ChildOf(color, level)].get();
            while (!child) {
                if (node->Children[scan])
                    child = node->Children[scan].get();
                else if (++scan == 7)
                    return 0;
            }
            node = child;
        }
        return node->PaletteIndex;
    }

    std::vector<Argb> Palette;
    int Reductions = 0;

private:
    struct Node {
        std::array<std::unique_ptr<Node>, 8> Children;
        bool IsLeaf = false;
        std::array<std::int64_t, 4> Sums = {};  // of pixels, red, green and blue
        int PaletteIndex = 0;
    };

    static std::size_t ChildOf(Argb color, int level) {
        const auto bit = [level](unsigned channel) { return channel >> (7 - level) & 1; };
        return bit(RedOf(color)) * 4 + bit(GreenOf(color)) * 2 + bit(BlueOf(color));
    }

    void Add(Argb color) {
        Node* node = &root_;
        for (int level = 0; !node->IsLeaf; ++level) {
            std::unique_ptr<Node>& child = node->Children[ChildOf(color, level)];
            if (!child) {
                child = std::make_unique<Node>();
                child->IsLeaf = level == 7;
                if (child->IsLeaf)
                    ++leafCount_;
                else
                    reducible_[level].push_back(child.get());
            }
            node = child.get();
        }
        const unsigned parts[] = {1, RedOf(color), GreenOf(color), BlueOf(color)};
        for (std::size_t i = 0; i < 4; ++i)
            node->Sums[i] += parts[i];
    }

    // The deepest inner node that was made last swallows its children.
    void ReduceTree() {
        std::size_t level = reducible_.size() - 1;
        while (reducible_[level].empty())
            --level;
        Node& node = *reducible_[level].back();
        reducible_[level].pop_back();
        for (std::unique_ptr<Node>& child : node.Children) {
            if (!child)
                continue;
            for (std::size_t i = 0; i < 4; ++i)
                node.Sums[i] += child->Sums[i];
            child.reset();
            --leafCount_;
        }
        node.IsLeaf = true;
        ++leafCount_;
        ++Reductions;
    }

    void BuildPalette(Node& node) {
        if (node.IsLeaf) {
            const auto mean = [&](int i) {
                return static_cast<unsigned>(node.Sums[i] / node.Sums[0]);
            };
            node.PaletteIndex = static_cast<int>(Palette.size());
            Palette.push_back(graphics::MakeArgb(255, mean(1), mean(2), mean(3)));
        }
        for (const std::unique_ptr<Node>& child : node.Children)
            if (child)
                BuildPalette(*child);
    }

    Node root_;
    std::array<std::vector<Node*>, 7> reducible_;
    int leafCount_ = 0;
};

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

TEST(PaletteImageGif, FewColorsStayExact) {
    // Depth first: red counts most, then green, then blue, bit by bit.
    const IndexedBitmap four =
        PaletteImageGif(RowOf({0xFFFF0000, 0xFF0000FF, 0xFF00FF00, 0xFF0000FF, 0xFF0000FE}), false);
    EXPECT_THAT(four.Indexes, ElementsAre(3, 1, 2, 1, 0));
    EXPECT_THAT(std::vector<Argb>(four.Palette.begin(), four.Palette.begin() + 5),
                ElementsAre(0xFF0000FE, 0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0u));
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
        Bitmap image(width, height);
        for (int i = 0; i < width * height; ++i) {
            const unsigned x = i % width, y = i / width;
            const Argb color = noise ? static_cast<Argb>(random())
                                     : graphics::MakeArgb(0, x * slope & 255, y * 4 & 255,
                                                          (x * y + random() % 4) & 255);
            image.MutablePixels()[i] = (color & mask) | base | 0xFF000000;
        }
        PlainOctree plain(PixelsOf(image));
        reductions += plain.Reductions;
        const IndexedBitmap indexed = PaletteImageGif(image, false);
        for (int i = 0; i < width * height; ++i)
            ASSERT_EQ(indexed.Indexes[i], plain.GetPaletteIndex(image.Pixels()[i])) << round;
        plain.Palette.resize(256);
        ASSERT_TRUE(std::ranges::equal(indexed.Palette, plain.Palette)) << round;
    }
    EXPECT_GT(reductions, 1000);
}

TEST(Octree, ColorsNeverAddedFindALeafOrTheFirst) {
    std::mt19937 random(3);
    for (unsigned count : {0u, 1u, 3u, 40u, 3000u}) {
        std::vector<Argb> colors(count);
        std::ranges::generate(colors, [&] { return 0xFF000000 | random(); });
        const PlainOctree plain(colors);
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
