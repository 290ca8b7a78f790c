#include <gif_lib.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "graphics/codecs/image_files.h"
#include "graphics/decoding.h"

namespace orbelle::graphics {
namespace {

using ::testing::StartsWith;

constexpr Argb kRed = 0xFFFF0000;
constexpr Argb kGreen = 0xFF00FF00;
constexpr Argb kBlue = 0xFF0000FF;
constexpr Argb kWhite = 0xFFFFFFFF;
constexpr Argb kBlack = 0xFF000000;

struct Frame {
    int Left = 0;
    int Top = 0;
    int Width = 1;
    int Height = 1;
    std::vector<std::uint8_t> Indexes = {};
    std::vector<Argb> Palette = {};  // of its own, if any
    int Transparent = NO_TRANSPARENT_COLOR;
    bool Interlaced = false;
};

ColorMapObject* MakeColorMap(const std::vector<Argb>& colors) {
    if (colors.empty())
        return nullptr;
    ColorMapObject* map = GifMakeMapObject(static_cast<int>(colors.size()), nullptr);
    for (std::size_t i = 0; i < colors.size(); ++i)
        map->Colors[i] = {GifByteType(RedOf(colors[i])), GifByteType(GreenOf(colors[i])),
                          GifByteType(BlueOf(colors[i]))};
    return map;
}

FileBytes MakeGif(int width, int height, const std::vector<Frame>& frames) {
    FileBytes file;
    const auto append = [](GifFileType* gif, const GifByteType* data, int count) {
        auto* to = static_cast<FileBytes*>(gif->UserData);
        to->insert(to->end(), data, data + count);
        return count;
    };
    GifFileType* gif = EGifOpen(&file, append, nullptr);
    EGifSetGifVersion(gif, true);
    ColorMapObject* colors = MakeColorMap({kRed, kGreen, kBlue, kWhite});
    EGifPutScreenDesc(gif, width, height, 8, 0, colors);
    GifFreeMapObject(colors);
    for (const Frame& frame : frames) {
        const GraphicsControlBlock control = {DISPOSE_PREVIOUS, false, 10, frame.Transparent};
        GifByteType block[4];
        EGifGCBToExtension(&control, block);
        EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, sizeof block, block);
        // The library forgets the last frame's without freeing it.
        GifFreeMapObject(std::exchange(gif->Image.ColorMap, nullptr));
        colors = MakeColorMap(frame.Palette);
        EGifPutImageDesc(gif, frame.Left, frame.Top, frame.Width, frame.Height, frame.Interlaced,
                         colors);
        GifFreeMapObject(colors);
        std::vector<GifByteType> indexes(frame.Indexes);
        EGifPutLine(gif, indexes.data(), static_cast<int>(indexes.size()));
    }
    EGifCloseFile(gif, nullptr);
    return file;
}

TEST(GifDecoder, ReadsFrames) {
    const struct {
        const char* Name;
        int Width, Height;
        Frame First;
        std::vector<Argb> Pixels;
    } cases[] = {
        {"part of the screen", 3, 2, {1, 1, 2, 1, {0, 2}}, {0, 0, 0, 0, kRed, kBlue}},
        {"the screen grows", 1, 2, {2, 0, 2, 1, {1, 2}}, {0, 0, kGreen, kBlue, 0, 0, 0, 0}},
        {"its own palette, one transparent",
         3,
         1,
         {0, 0, 3, 1, {0, 1, 0}, {0xFF112233, 0xFF445566}, 1},
         {0xFF112233, 0x00445566, 0xFF112233}},
        // Rows 0 and 8, then 4, then 2 and 6, then the odd ones.
        {"interlaced",
         1,
         9,
         {0, 0, 1, 9, {0, 1, 2, 3, 0, 1, 2, 3, 0}, {}, NO_TRANSPARENT_COLOR, true},
         {kRed, kGreen, kWhite, kBlue, kBlue, kWhite, kRed, kRed, kGreen}},
    };
    for (const auto& [name, width, height, first, pixels] : cases) {
        SCOPED_TRACE(name);
        const FileBytes file = MakeGif(width, height, {first, {0, 0, 3, 2, {1, 1, 1, 1, 1, 1}}});
        const Bitmap image = DecodeImage(file);
        EXPECT_EQ(image.Height(), height);
        EXPECT_EQ(PixelsOf(image), pixels);
        const FileBytes control = {0x21, 0xF9};
        const auto secondFrame =
            std::find_end(file.begin(), file.end(), control.begin(), control.end());
        ExpectCutsToThrow(file, secondFrame - file.begin());
        ExpectToSurviveDamage(file);
    }

    FileBytes file = MakeGif(3, 1, {{.Width = 3, .Indexes = {1, 2, 3}}});
    const std::size_t kFlagsAt = 10, kPaletteAt = 13;
    file[kFlagsAt] -= 1;  // two colours instead of four
    file.erase(file.begin() + kPaletteAt + 6, file.begin() + kPaletteAt + 12);
    EXPECT_EQ(PixelsOf(DecodeImage(file)), (std::vector<Argb>{kGreen, kBlack, kBlack}));
}

TEST(GifDecoder, RefusesFilesWithoutAUsablePicture) {
    EXPECT_EQ(ProblemOf(MakeGif(5, 5, {})), "the GIF file holds no picture");
    EXPECT_THAT(ProblemOf(MakeGif(60000, 60000, {{.Indexes = {0}}})),
                StartsWith("the picture claims 60000 x 60000 pixels, more than"));
    EXPECT_EQ(ProblemOf(MakeGif(1, 1, {{.Width = 0, .Height = 0, .Indexes = {0}}})),
              "the picture claims a size of 0 x 0 pixels");
    const FileBytes file = MakeGif(2, 1, {{.Width = 2, .Indexes = {0, 1}}});
    EXPECT_THAT(ProblemOf({file.begin(), file.end() - 4}),
                StartsWith("the GIF picture is cut short or damaged: "));
}

// Every entry used, none alike.
IndexedBitmap AllColors(int width, int height) {
    IndexedBitmap image{width, height, {}, {}};
    for (int i = 0; i < width * height; ++i)
        image.Indexes.push_back(static_cast<std::uint8_t>(i * 7 + i / 256));
    for (unsigned i = 0; i < 256; ++i)
        image.Palette[i] = MakeArgb(255, i, 255 - i, i * 3 & 255);
    return image;
}

TEST(GifEncoder, WritesOneWholeFrameWithAGlobalTable) {
    IndexedBitmap image = AllColors(300, 2);
    const auto bytesAt = [&](std::size_t from, std::size_t count) {
        const FileBytes file = EncodeGif(image);
        EXPECT_EQ(file.back(), ';');
        return FileBytes(file.begin() + from, file.begin() + from + count);
    };
    constexpr std::size_t kPaletteAt = 13, kPaletteEnd = kPaletteAt + 3 * 256;
    // Signature, size, flags (global table of 8 bits), background colour, aspect ratio.
    EXPECT_EQ(bytesAt(0, kPaletteAt),
              (FileBytes{'G', 'I', 'F', '8', '9', 'a', 44, 1, 2, 0, 0xF7, 0, 0}));
    EXPECT_EQ(bytesAt(kPaletteAt + 3 * 2, 3), (FileBytes{2, 253, 6}));
    // The frame: place, size, no table of its own and not interlaced, code size.
    const FileBytes frame = {',', 0, 0, 0, 0, 44, 1, 2, 0, 0, 8};
    EXPECT_EQ(bytesAt(kPaletteEnd, 11), frame);
    // The first entry without alpha is the transparent colour, if a pixel has it.
    image.Palette[9] = SetAlphaByte(image.Palette[9], 0);
    EXPECT_EQ(bytesAt(kPaletteEnd, 9), (FileBytes{'!', 0xF9, 4, 1, 0, 0, 9, 0, ','}));
    std::ranges::replace(image.Indexes, 9, 10);
    EXPECT_EQ(bytesAt(kPaletteEnd, 11), frame);
}

TEST(GifEncoder, WhatItWritesComesBack) {
    // The last one is long enough for the code table to fill up and begin anew.
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
    for (auto [width, height, count] : {std::tuple{2, 2, 6},
                                        {3, 3, 6},
                                        {-2, -3, 6},
                                        {0, 6, 6},
                                        {kMaxBitmapSide + 1, 1, kMaxBitmapSide + 1}})
        EXPECT_THROW(EncodeGif({width, height, std::vector<std::uint8_t>(count), {}}),
                     std::invalid_argument);
}

}  // namespace
}  // namespace orbelle::graphics
