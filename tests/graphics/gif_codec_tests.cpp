#include <gif_lib.h>
#include <gmock/gmock.h>

#include <algorithm>

#include "graphics/codecs/image_files.h"
#include "graphics/decoding.h"

namespace orbelle::graphics {
namespace {

using ::testing::StartsWith;

constexpr Argb kRed = 0xFFFF0000;
constexpr Argb kGreen = 0xFF00FF00;
constexpr Argb kBlue = 0xFF0000FF;
constexpr Argb kBlack = 0xFF000000;
const std::vector<Argb> kColors = {kRed, kGreen, kBlue, 0xFFFFFFFF};

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
    for (std::size_t i = 0; i < colors.size(); ++i) {
        map->Colors[i] = {GifByteType(RedOf(colors[i])), GifByteType(GreenOf(colors[i])),
                          GifByteType(BlueOf(colors[i]))};
    }
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
    ColorMapObject* colors = MakeColorMap(kColors);
    EGifPutScreenDesc(gif, width, height, 8, 0, colors);
    GifFreeMapObject(colors);
    for (const Frame& frame : frames) {
        const GraphicsControlBlock control = {DISPOSE_PREVIOUS, false, 10, frame.Transparent};
        GifByteType block[4];
        EGifGCBToExtension(&control, block);
        EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, sizeof block, block);
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

TEST(GifDecoder, PutsTheFirstFrameOnTheScreen) {
    const FileBytes file = MakeGif(3, 2,
                                   {{.Left = 1, .Top = 1, .Width = 2, .Indexes = {0, 2}},
                                    {.Width = 3, .Height = 2, .Indexes = {1, 1, 1, 1, 1, 1}}});
    const Bitmap image = DecodeImage(file);
    EXPECT_EQ(image.Width(), 3);
    EXPECT_EQ(PixelsOf(image), (std::vector<Argb>{0, 0, 0, 0, kRed, kBlue}));
    const auto secondFrame = std::ranges::find_end(file, FileBytes{0x21, 0xF9}).begin();
    ExpectCutsToThrow(file, secondFrame - file.begin());
    ExpectToSurviveDamage(file);
}

TEST(GifDecoder, TheScreenGrowsToHoldTheFrame) {
    const Bitmap image =
        DecodeImage(MakeGif(1, 3, {{.Left = 2, .Width = 2, .Height = 1, .Indexes = {1, 2}}}));
    EXPECT_EQ(image.Width(), 4);
    EXPECT_EQ(image.Height(), 3);
    EXPECT_EQ(image.GetPixel(3, 0), kBlue);
}

TEST(GifDecoder, ColorsComeFromTheFramesPaletteAndTheTransparentIndex) {
    Frame frame = {.Width = 3, .Indexes = {0, 1, 0}, .Palette = {0xFF112233, 0xFF445566}};
    frame.Transparent = 1;
    EXPECT_EQ(PixelsOf(DecodeImage(MakeGif(3, 1, {frame}))),
              (std::vector<Argb>{0xFF112233, 0x00445566, 0xFF112233}));

    FileBytes file = MakeGif(3, 1, {{.Width = 3, .Indexes = {1, 2, 3}}});
    const std::size_t kFlagsAt = 10;
    const std::size_t kPaletteAt = 13;
    file[kFlagsAt] -= 1;  // two colours instead of four
    file.erase(file.begin() + kPaletteAt + 6, file.begin() + kPaletteAt + 12);
    EXPECT_EQ(PixelsOf(DecodeImage(file)), (std::vector<Argb>{kGreen, kBlack, kBlack}));
}

TEST(GifDecoder, ReadsInterlacedRows) {
    // Rows 0 and 8, then 4, then 2 and 6, then the odd ones.
    const Frame frame = {.Height = 9, .Indexes = {0, 1, 2, 3, 0, 1, 2, 3, 0}, .Interlaced = true};
    const std::vector<std::size_t> kIndexOfRow = {0, 1, 3, 2, 2, 3, 0, 0, 1};
    std::vector<Argb> expected;
    for (std::size_t index : kIndexOfRow)
        expected.push_back(kColors[index]);
    EXPECT_EQ(PixelsOf(DecodeImage(MakeGif(1, 9, {frame}))), expected);
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

}  // namespace
}  // namespace orbelle::graphics
