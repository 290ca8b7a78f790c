#include "formats/icon_diff.h"

#include <gtest/gtest.h>

#include "document/layer_slots.h"
#include "formats/diff_sheet.h"
#include "formats/icon_file.h"
#include "formats/pictures_of_file.h"
#include "formats/volf_store.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using testing::FilledPicture;

constexpr Argb kBlue = 0xFF3060C0, kRed = 0xFFC02040;

std::vector<std::pair<int, int>> SizesOf(const std::vector<Bitmap>& pictures) {
    std::vector<std::pair<int, int>> sizes;
    for (const Bitmap& picture : pictures)
        sizes.emplace_back(picture.Width(), picture.Height());
    return sizes;
}

using Sizes = std::vector<std::pair<int, int>>;

TEST(IconDiff, APixelDiffersByItsWorstChannelAndWhatIsNotSeenHasNoColour) {
    EXPECT_EQ(PixelDifference(0xFF102030, 0xFF102030), 0);
    EXPECT_EQ(PixelDifference(0xFF102030, 0xFF0F2033), 3);
    EXPECT_EQ(PixelDifference(0x80102030, 0xFF102030), 127) << "alpha is a channel";
    EXPECT_EQ(PixelDifference(0x00FFFFFF, 0x00123456), 0);
    EXPECT_EQ(PixelDifference(0x00FFFFFF, 0x05060708), 8) << "0, 0, 0, 0";
}

TEST(IconDiff, PicturesOfOneSizeArePaired) {
    Bitmap changed = FilledPicture(16, 16, kBlue);
    changed.SetPixel(3, 4, kBlue + 7);
    changed.SetPixel(15, 15, kBlue - 0x100);
    const std::vector<Bitmap> a = {FilledPicture(16, 16, kBlue), FilledPicture(32, 32, kBlue)};
    const std::vector<Bitmap> b = {changed, FilledPicture(20, 20, kBlue),
                                   FilledPicture(32, 31, kBlue), FilledPicture(32, 32, kBlue)};
    const std::vector<SizePair> pairs = PairPictures(a, b);
    ASSERT_EQ(pairs.size(), 4U);
    EXPECT_EQ(pairs[0].Pixels, 2);
    EXPECT_EQ(pairs[0].Max, 7);
    EXPECT_EQ(pairs[1].Size(), 20);
    EXPECT_TRUE(pairs[1].A.IsEmpty() && pairs[1].Differs());
    EXPECT_FALSE(pairs[2].Differs()) << "of both files";
    EXPECT_TRUE(pairs[3].A.IsEmpty()) << "of another height";
}

class PicturesOfFileTest : public ::testing::Test {
protected:
    Sizes Shown(const char* name) { return SizesOf(PicturesOfFile(folder / name, 64)); }
    void Write(const char* name, const std::vector<std::uint8_t>& bytes) {
        graphics::WriteFile(folder / name, bytes);
    }

    testing::TemporaryFolder folder;
};

TEST_F(PicturesOfFileTest, AreThoseOfAllSizes) {
    Write("a.png", EncodePng(FilledPicture(9, 3, kRed)));
    EXPECT_EQ(Shown("a.png"), Sizes({{9, 3}}));

    document::Document document;
    document.Master = document::MakePicturePage(FilledPicture(32, 20, kRed));
    document.Master.Height = 24;
    document.Background = kBlue;
    document.SetArtwork(32, document::MakePicturePage(FilledPicture(32, 32, kRed)));
    document.SetArtwork(16, document::MakePicturePage(FilledPicture(16, 16, kRed)));
    SaveDocument(folder / "a.volf", document);
    EXPECT_EQ(Shown("a.volf"), Sizes({{16, 16}, {32, 32}, {32, 24}}));
    EXPECT_EQ(PicturesOfFile(folder / "a.volf", 64)[2].Row(23)[0], kBlue) << "the background";
}

TEST_F(PicturesOfFileTest, OfAnIconAreTheRichestOfEachSize) {
    // Two bitmaps of 8 x 8 pixels and 1 bit, all of the second colour, and one of 32 bits.
    const auto bitmap = [](int bits, Argb color) {
        std::vector<std::uint8_t> dib = {40, 0, 0, 0, 8, 0, 0, 0, 16, 0, 0, 0, 1, 0};
        dib.push_back(static_cast<std::uint8_t>(bits));
        dib.resize(40);
        const auto append = [&](Argb value, int count) {
            for (int i = 0; i < count * 4; ++i)
                dib.push_back(static_cast<std::uint8_t>(value >> i % 4 * 8));
        };
        if (bits == 1) {
            append(0, 1);
            append(color, 1);
        }
        append(bits == 1 ? 0xFFFFFFFF : color, bits == 1 ? 8 : 64);
        append(0, 8);
        return dib;
    };
    const std::vector<std::vector<std::uint8_t>> images = {bitmap(1, kBlue), bitmap(32, kRed),
                                                           bitmap(1, kRed)};
    std::vector<std::uint8_t> icon = {0, 0, 1, 0, 3, 0};
    std::size_t offset = 6 + 3 * 16;
    for (const auto& image : images) {
        icon.insert(icon.end(), {8, 8, 0, 0, 1, 0, image[14], 0});
        for (const std::size_t number : {image.size(), offset})
            for (int shift = 0; shift < 32; shift += 8)
                icon.push_back(static_cast<std::uint8_t>(number >> shift));
        offset += image.size();
    }
    for (const auto& image : images)
        icon.insert(icon.end(), image.begin(), image.end());
    Write("a.ico", icon);
    const std::vector<Bitmap> pictures = PicturesOfFile(folder / "a.ico", 64);
    ASSERT_EQ(SizesOf(pictures), Sizes({{8, 8}}));
    EXPECT_EQ(pictures[0].Row(0)[0], kRed);

    icon.resize(icon.size() - 60);
    Write("cut.ico", icon);
    EXPECT_THROW(PicturesOfFile(folder / "cut.ico", 64), graphics::FileError);
}

TEST(DiffSheet, MarksWhatDiffersAtEverySize) {
    Bitmap changed = FilledPicture(16, 16, kBlue);
    changed.SetPixel(2, 3, ~kBlue | 0xFF000000);
    Bitmap large = FilledPicture(2048, 1024, kBlue);
    Bitmap other = large;
    other.SetPixel(1000, 200, 0);
    const std::vector<Bitmap> a = {FilledPicture(16, 16, kBlue), large};
    const std::vector<Bitmap> b = {changed, FilledPicture(24, 24, kBlue), other};
    const Bitmap sheet = DrawDiffSheet(PairPictures(a, b));
    // Rows of 256, 240 and 256 pixels, columns of 512.
    ASSERT_EQ(SizesOf({sheet}), Sizes({{3 * 512 + 4 * 16, 256 + 240 + 256 + 4 * 16}}));
    const auto column = [](int i, int width) { return 16 + i * 528 + (512 - width) / 2; };
    const auto isRed = [&](int x, int y) {
        const Argb pixel = sheet.Row(y)[x];
        return graphics::RedOf(pixel) > 200 && graphics::GreenOf(pixel) < 80;
    };
    // A pixel is a square of 16.
    const int left = column(2, 256) + 2 * 16, top = 16 + 3 * 16;
    EXPECT_TRUE(isRed(left, top) && isRed(left + 15, top + 15));
    EXPECT_FALSE(isRed(left - 1, top) || isRed(left + 16, top));
    EXPECT_EQ(sheet.Row(16 + 3 * 16)[column(0, 256) + 2 * 16], kBlue);
    EXPECT_EQ(sheet.Row(16 + 3 * 16)[column(1, 256) + 2 * 16], ~kBlue | 0xFF000000);
    // One of two has nothing: neither has the difference.
    EXPECT_EQ(sheet.Row(288 + 100)[column(0, 240) + 100], sheet.Row(0)[0]);
    EXPECT_EQ(sheet.Row(288 + 100)[column(1, 240) + 100], kBlue);
    EXPECT_EQ(sheet.Row(288 + 100)[column(2, 240) + 100], sheet.Row(0)[0]);
    // One of sixteen pixels that lie below one of the sheet.
    EXPECT_TRUE(isRed(column(2, 512) + 250, 544 + 50));

    std::vector<Bitmap> many;
    for (int height = 1; height <= 100; ++height)
        many.emplace_back(height, 512);
    EXPECT_THROW(DrawDiffSheet(PairPictures(many, {})), Error);
}

}  // namespace
}  // namespace orbelle::formats
