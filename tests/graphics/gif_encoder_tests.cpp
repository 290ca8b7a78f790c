#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>

#include "graphics/codecs/image_files.h"
#include "graphics/decoding.h"

namespace orbelle::graphics {
namespace {

constexpr std::size_t kPaletteAt = 13;
constexpr std::size_t kPaletteEnd = kPaletteAt + 3 * 256;

// Every entry used, none alike.
IndexedBitmap AllColors(int width, int height) {
    IndexedBitmap image{width, height, {}, {}};
    for (int i = 0; i < width * height; ++i)
        image.Indexes.push_back(static_cast<std::uint8_t>(i * 7 + i / 256));
    for (unsigned i = 0; i < 256; ++i)
        image.Palette[i] = MakeArgb(255, i, 255 - i, i * 3 & 255);
    return image;
}

FileBytes BytesAt(const FileBytes& file, std::size_t from, std::size_t count) {
    return {file.begin() + from, file.begin() + from + count};
}

TEST(GifEncoder, WritesOneWholeFrameWithAGlobalTable) {
    const IndexedBitmap image = AllColors(300, 2);
    const FileBytes file = EncodeGif(image);
    // Signature, size, flags (global table of 8 bits), background colour, aspect ratio.
    EXPECT_EQ(BytesAt(file, 0, kPaletteAt),
              (FileBytes{'G', 'I', 'F', '8', '9', 'a', 44, 1, 2, 0, 0xF7, 0, 0}));
    EXPECT_EQ(BytesAt(file, kPaletteAt + 3 * 2, 3), (FileBytes{2, 253, 6}));
    // The frame: place, size, no table of its own and not interlaced, code size.
    EXPECT_EQ(BytesAt(file, kPaletteEnd, 11), (FileBytes{',', 0, 0, 0, 0, 44, 1, 2, 0, 0, 8}));
    EXPECT_EQ(file.back(), ';');
}

TEST(GifEncoder, TheFirstEntryWithoutAlphaIsTheTransparentColor) {
    IndexedBitmap image = AllColors(16, 16);
    image.Palette[9] = SetAlphaByte(image.Palette[9], 0);
    FileBytes file = EncodeGif(image);
    EXPECT_EQ(BytesAt(file, kPaletteEnd, 9), (FileBytes{'!', 0xF9, 4, 1, 0, 0, 9, 0, ','}));

    // No pixel has it.
    std::ranges::replace(image.Indexes, 9, 10);
    EXPECT_EQ(EncodeGif(image)[kPaletteEnd], ',');
}

TEST(GifEncoder, WhatItWritesComesBack) {
    // Long enough for the code table to fill up and begin anew.
    for (auto [width, height] : {std::pair{1, 1}, {3, 5}, {300, 200}}) {
        IndexedBitmap image = AllColors(width, height);
        image.Palette[0] = SetAlphaByte(image.Palette[0], 0);
        const Bitmap back = DecodeImage(EncodeGif(image));
        EXPECT_EQ(back.Width(), width);
        EXPECT_EQ(PixelsOf(back), PixelsOf(image.ToBitmap()));
        EXPECT_EQ(back.GetPixel(0, 0), 0x0000FF00u);
    }
}

TEST(GifEncoder, RefusesIndexesThatDoNotFitTheSize) {
    EXPECT_TRUE(EncodeGif({}).empty());
    const std::vector<std::uint8_t> six(6);
    for (auto [width, height] : {std::pair{2, 2}, {3, 3}, {-2, -3}, {0, 6}})
        EXPECT_THROW(EncodeGif({width, height, six, {}}), std::invalid_argument);
    const std::vector<std::uint8_t> wide(kMaxBitmapSide + 1);
    EXPECT_THROW(EncodeGif({kMaxBitmapSide + 1, 1, wide, {}}), std::invalid_argument);
}

}  // namespace
}  // namespace orbelle::graphics
