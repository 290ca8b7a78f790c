#include "formats/export_image.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/pixel_runs.h"
#include "support/random_pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using ::testing::ElementsAre;
using testing::FilledPicture;

constexpr Argb kRed = 0xFFFF0000;
constexpr Argb kBlue = 0xFF0000FF;

TEST(IconSizesFor, FollowTheLargerSide) {
    const struct {
        int Width, Height;
        std::size_t Count;
        int Largest;
    } cases[] = {
        {512, 100, 7, 256}, {256, 1, 7, 256}, {255, 255, 6, 128}, {1, 128, 6, 128}, {127, 1, 5, 64},
        {64, 64, 5, 64},    {63, 1, 4, 48},   {48, 48, 4, 48},    {47, 1, 3, 32},   {32, 32, 3, 32},
        {31, 1, 2, 24},     {24, 16, 2, 24},  {23, 23, 1, 16},    {16, 16, 1, 16},
    };
    for (const auto& [width, height, count, largest] : cases) {
        const std::vector<int> sizes = IconSizesFor(width, height);
        ASSERT_EQ(sizes.size(), count) << width << " x " << height;
        EXPECT_EQ(sizes.front(), largest);
        EXPECT_EQ(sizes.back(), 16);
    }
    EXPECT_THAT(IconSizesFor(600, 9), ElementsAre(256, 128, 64, 48, 32, 24, 16));
    EXPECT_TRUE(IconSizesFor(15, 15).empty());
}

TEST(FindExportFormat, GoesByTheExtensionInWhateverCase) {
    const std::pair<const char*, std::optional<ExportFormat>> cases[] = {
        {"a.ico", ExportFormat::Ico},   {"b/a.b.PNG", ExportFormat::Png},
        {"a.gif", ExportFormat::Gif},   {"a.Jpg", ExportFormat::Jpeg},
        {"a.jpeg", ExportFormat::Jpeg}, {"a.bmp", ExportFormat::Bmp},
        {"a.tiff", std::nullopt},       {"png", std::nullopt},
        {"a.png/b", std::nullopt},      {"a.", std::nullopt},
    };
    for (const auto& [path, format] : cases)
        EXPECT_EQ(FindExportFormat(path), format) << path;
}

TEST(DrawIconPicture, HasWholePixelsInTheMiddle) {
    const struct {
        int Width, Height, Size;
        const char* Pixels;
    } cases[] = {
        {512, 100, 256, "103-152: 0-255"},
        {512, 100, 16, "6-8: 0-15"},
        {24, 16, 24, "4-19: 0-23"},
        {24, 16, 16, "2-12: 0-15"},
        {16, 16, 20, "2-17: 2-17"},
        {13, 16, 16, "0-15: 1-13"},
        {512, 1, 16, ""},
        // Ties go to the even number.
        {16, 5, 8, "3-4: 0-7"},
        {16, 7, 8, "2-5: 0-7"},
        {5, 16, 8, "0-7: 3-4"},
    };
    for (const auto& [width, height, size, pixels] : cases) {
        const Bitmap picture = DrawIconPicture(FilledPicture(width, height, kBlue), size);
        EXPECT_EQ(PixelRuns(picture), pixels) << width << " x " << height;
    }
}

class ExportTest : public ::testing::Test {
protected:
    void SetUp() override { setenv("XDG_CACHE_HOME", (folder_ / "cache").c_str(), 1); }

    Bitmap Exported(ExportFormat format, const Bitmap& page, Argb background) const {
        ExportImage(path_, format, page, background);
        return graphics::LoadImageFromFile(path_);
    }

    const testing::TemporaryFolder folder_;
    const std::filesystem::path path_ = folder_ / "exported";
};

TEST_F(ExportTest, PicturesWithoutAlphaStandOnTheBackgroundOrOnWhite) {
    const Bitmap page = testing::RowOf({kBlue, 0x00445566});
    const struct {
        ExportFormat Format;
        Argb Background;
        Argb Uncovered;
        int Tolerance;
    } cases[] = {
        {ExportFormat::Png, kRed, kRed, 0},
        {ExportFormat::Png, 0, 0, 0},
        {ExportFormat::Png, 0x80FF0000, 0x80FF0000, 0},
        {ExportFormat::Bmp, kRed, kRed, 0},
        {ExportFormat::Bmp, 0, 0xFFFFFFFF, 0},
        {ExportFormat::Bmp, 0x00FF0000, kRed, 0},
        {ExportFormat::Jpeg, kRed, kRed, 3},
        {ExportFormat::Jpeg, 0, 0xFFFFFFFF, 3},
        {ExportFormat::Jpeg, 0x00FF0000, kRed, 3},
    };
    for (const auto& [format, background, uncovered, tolerance] : cases) {
        const Bitmap picture = Exported(format, page, background);
        ASSERT_EQ(std::pair(picture.Width(), picture.Height()), std::pair(2, 1));
        const Bitmap expected = testing::RowOf({kBlue, uncovered});
        for (int x = 0; x < 2; ++x)
            for (int channel : {testing::kBlue, testing::kGreen, testing::kRed, testing::kAlpha})
                EXPECT_NEAR(testing::ChannelAt(picture, x, 0, channel),
                            testing::ChannelAt(expected, x, 0, channel), tolerance)
                    << static_cast<int>(format) << ", " << background;
    }
}

TEST_F(ExportTest, AnIconHoldsThePageInTransparentSquares) {
    const Bitmap page = FilledPicture(512, 100, kBlue);
    std::vector<Bitmap> pictures;
    for (int size : {256, 128, 64, 48, 32, 24, 16})
        pictures.push_back(DrawIconPicture(page, size));
    ExportImage(path_, ExportFormat::Ico, page, kRed);
    EXPECT_EQ(graphics::ReadFile(path_), EncodeIcon(pictures, IconFormat::Bmp));
}

TEST_F(ExportTest, SettingsChooseSizesAndFormatOfAnIcon) {
    const Bitmap page = FilledPicture(15, 15, kBlue);
    ExportImage(path_, ExportFormat::Ico, page, 0, {{32, 15}, IconFormat::Png});
    const Bitmap pictures[] = {DrawIconPicture(page, 32), page};
    EXPECT_EQ(pictures[0].GetPixel(8, 22), kBlue);
    EXPECT_EQ(pictures[0].GetPixel(7, 22), 0u);
    EXPECT_EQ(pictures[0].GetPixel(23, 23), 0u);
    EXPECT_EQ(graphics::ReadFile(path_), EncodeIcon(pictures, IconFormat::Png));
}

TEST_F(ExportTest, APageTooSmallForAnIconLeavesTheOldFile) {
    const std::vector<std::uint8_t> old = {'o', 'l', 'd'};
    graphics::WriteFile(path_, old);
    ExportImage(path_, ExportFormat::Ico, FilledPicture(15, 15, kBlue), 0);
    EXPECT_EQ(graphics::ReadFile(path_), old);
    EXPECT_FALSE(std::filesystem::exists(SizesFolder()));
}

TEST_F(ExportTest, ThePicturesOfAnIconStayInTheCacheFolder) {
    for (Argb color : {kRed, kBlue}) {
        const Bitmap page = FilledPicture(24, 24, color);
        ExportImage(path_, ExportFormat::Ico, page, 0);
        const Bitmap scratch = graphics::LoadImageFromFile(folder_ / "cache/Sizes/temp24.png");
        EXPECT_EQ(scratch.GetPixel(23, 23), color);
    }
    const std::filesystem::directory_iterator files(SizesFolder());
    EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

TEST_F(ExportTest, ACacheFolderThatCannotBeWrittenStopsNoExport) {
    graphics::WriteFile(folder_ / "cache", std::vector<std::uint8_t>{1});
    ExportImage(path_, ExportFormat::Ico, FilledPicture(16, 16, kBlue), 0);
    EXPECT_TRUE(std::filesystem::exists(path_));
    // A picture's name that is taken by a folder.
    setenv("XDG_CACHE_HOME", (folder_ / "other").c_str(), 1);
    std::filesystem::create_directories(SizesFolder() / "temp16.png");
    EXPECT_NO_THROW(ExportImage(path_, ExportFormat::Ico, FilledPicture(16, 16, kBlue), 0));
}

TEST_F(ExportTest, FailuresOfTheOutputAreTold) {
    const Bitmap page = FilledPicture(16, 16, kBlue);
    const auto nowhere = folder_ / "missing" / "x";
    EXPECT_THROW(ExportImage(nowhere, ExportFormat::Ico, page, 0), graphics::FileError);
    EXPECT_THROW(ExportImage(nowhere, ExportFormat::Png, page, 0), graphics::FileError);
    EXPECT_THROW(ExportImage(path_, ExportFormat::Png, Bitmap(), 0), graphics::FileError);
    EXPECT_THROW(ExportImage(nowhere, ExportFormat::Gif, page, 0), graphics::FileError);
    EXPECT_FALSE(std::filesystem::exists(path_));
}

// Half transparent red on the left of a page; the right stays blank.
TEST_F(ExportTest, AGifIsTransparentOnlyWithoutAnyBackground) {
    const Bitmap page = testing::RowOf({0x80FF0000, 0});
    const auto exported = [&](graphics::Argb background, int threshold) {
        ExportSettings settings;
        settings.GifThreshold = threshold;
        ExportImage(path_, ExportFormat::Gif, page, background, settings);
        const Bitmap gif = graphics::LoadImageFromFile(path_);
        return std::pair{*gif.GetPixel(0, 0), *gif.GetPixel(1, 0)};
    };
    EXPECT_EQ(exported(0, 128), std::pair(0xFFFF0000, 0x00000000U));
    EXPECT_EQ(exported(0, 129), std::pair(0x00000000U, 0x00000000U));
    EXPECT_EQ(exported(0xFF0000FF, 129), std::pair(0xFF80007F, 0xFF0000FF));
    // Alpha 0 with other bits: nothing is behind the picture, and nothing is transparent.
    EXPECT_EQ(exported(0x00123456, 128), std::pair(0xFFFF0000, 0xFF000000));
}

TEST_F(ExportTest, ARelativeCacheFolderCountsAsNone) {
    setenv("XDG_CACHE_HOME", "relative", 1);
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    setenv("HOME", "/home/someone", 1);
    EXPECT_EQ(SizesFolder(), "/home/someone/.cache/Sizes");
    setenv("HOME", home.c_str(), 1);
}

}  // namespace
}  // namespace orbelle::formats
