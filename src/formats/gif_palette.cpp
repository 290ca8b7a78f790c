#include "formats/gif_palette.h"

#include <algorithm>
#include <array>

#include "formats/octree.h"
#include "graphics/codecs/image_files.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using graphics::IndexedBitmap;

constexpr Argb kKeyColor = 0xFF000000;
constexpr Argb kNearBlack = 0xFF050505;
constexpr unsigned kNearBlackLimit = 10;
constexpr unsigned kKeyLimit = 5;

bool AllChannelsBelow(Argb color, unsigned limit) {
    return graphics::RedOf(color) < limit && graphics::GreenOf(color) < limit &&
           graphics::BlueOf(color) < limit;
}

struct ColorSum {
    std::uint64_t Count = 0;
    std::uint64_t Red = 0;
    std::uint64_t Green = 0;
    std::uint64_t Blue = 0;

    void Add(Argb color, std::uint64_t times) {
        Count += times;
        Red += times * graphics::RedOf(color);
        Green += times * graphics::GreenOf(color);
        Blue += times * graphics::BlueOf(color);
    }
    Argb Mean() const {
        return graphics::MakeArgb(255, static_cast<unsigned>(Red / Count),
                                  static_cast<unsigned>(Green / Count),
                                  static_cast<unsigned>(Blue / Count));
    }
};

// From the last pixel to the first: the order decides which colours are merged.
void AddColors(const Bitmap& image, Octree& tree) {
    const Argb* first = image.Pixels();
    const Argb* pixel = first + static_cast<std::size_t>(image.Width()) * image.Height();
    Argb last = 0;
    bool any = false;
    while (pixel != first) {
        --pixel;
        if (any && *pixel == last)
            continue;
        last = *pixel;
        any = true;
        tree.AddColor(last);
    }
}

}  // namespace

Bitmap FlattenToKeyColor(const Bitmap& image, std::uint8_t threshold) {
    Bitmap flat(image.Width(), image.Height(), graphics::PixelFormat::Rgb24);
    if (flat.IsEmpty())
        return flat;
    const std::size_t count = static_cast<std::size_t>(image.Width()) * image.Height();
    std::transform(image.Pixels(), image.Pixels() + count, flat.MutablePixels(),
                   [threshold](Argb color) {
                       if (graphics::AlphaOf(color) < threshold)
                           return kKeyColor;
                       if (AllChannelsBelow(color, kNearBlackLimit))
                           return kNearBlack;
                       return graphics::SetAlphaByte(color, 255);
                   });
    return flat;
}

IndexedBitmap PaletteImageGif(const Bitmap& image, bool useTransparencyColor) {
    IndexedBitmap indexed;
    if (image.IsEmpty())
        return indexed;
    Octree tree;
    AddColors(image, tree);
    tree.NumberLeaves();

    indexed.Width = image.Width();
    indexed.Height = image.Height();
    const std::size_t count = static_cast<std::size_t>(image.Width()) * image.Height();
    indexed.Indexes.resize(count);
    std::array<ColorSum, Octree::kMaxLeaves> sums;
    const Argb* pixels = image.Pixels();
    for (std::size_t start = 0; start < count;) {
        const Argb color = pixels[start];
        const std::uint8_t index = tree.GetPaletteIndex(color);
        std::size_t end = start;
        do
            indexed.Indexes[end++] = index;
        while (end < count && pixels[end] == color);
        sums[index].Add(color, end - start);
        start = end;
    }
    std::transform(sums.begin(), sums.begin() + tree.LeafCount(), indexed.Palette.begin(),
                   [](const ColorSum& sum) { return sum.Mean(); });
    if (useTransparencyColor) {
        const auto key = std::ranges::find_if(
            indexed.Palette, [](Argb color) { return AllChannelsBelow(color, kKeyLimit); });
        if (key != indexed.Palette.end())
            *key = graphics::SetAlphaByte(*key, 0);
    }
    return indexed;
}

std::vector<std::uint8_t> EncodeGifPicture(const Bitmap& surface, bool transparentBackground,
                                           std::uint8_t threshold) {
    const Bitmap opaque = transparentBackground ? FlattenToKeyColor(surface, threshold) : surface;
    return EncodeGif(PaletteImageGif(opaque, transparentBackground));
}

}  // namespace orbelle::formats
