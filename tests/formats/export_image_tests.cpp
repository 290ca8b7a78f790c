#include "formats/export_image.h"

#include <gtest/gtest.h>

#include "filters/shrink_to_size.h"
#include "formats/export_icon.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/random_pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using testing::FilledPicture;

constexpr Argb kRed = 0xFFFF0000;
constexpr Argb kBlue = 0xFF0000FF;

TEST(IconSizesFor, FollowTheLargerSide) {
    const std::vector<int> sizes = {256, 128, 64, 48, 32, 24, 16};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const std::vector<int> fitting(sizes.begin() + static_cast<std::ptrdiff_t>(i), sizes.end());
        const std::vector<int> below(fitting.begin() + 1, fitting.end());
        EXPECT_EQ(IconSizesFor(sizes[i], 1), fitting);
        EXPECT_EQ(IconSizesFor(9, sizes[i]), fitting);
        EXPECT_EQ(IconSizesFor(sizes[i] - 1, sizes[i] - 1), below);
    }
    EXPECT_EQ(IconSizesFor(600, 9), sizes);
}

TEST(FindExportFormat, GoesByTheExtensionInWhateverCase) {
    const std::pair<const char*, std::optional<ExportFormat>> cases[] = {
        {"a.ico", ExportFormat::Ico},   {"b/a.b.PNG", ExportFormat::Png},
        {"a.gif", ExportFormat::Gif},   {"a.Jpg", ExportFormat::Jpeg},
        {"a.CUR", ExportFormat::Cur},   {"a.icns", ExportFormat::Icns},
        {"a.jpeg", ExportFormat::Jpeg}, {"a.bmp", ExportFormat::Bmp},
        {"a.tiff", std::nullopt},       {"png", std::nullopt},
        {"a.png/b", std::nullopt},      {"a.", std::nullopt},
    };
    for (const auto& [path, format] : cases)
        EXPECT_EQ(FindExportFormat(path), format) << path;
}

class ExportTest : public ::testing::Test {
protected:
    void SetUp() override { testing::SetEnvironment(testing::EnvironmentIn(folder_.Path())); }

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
        ExportImage(path_, format, page, background);
        const Bitmap picture = graphics::LoadImageFromFile(path_);
        ASSERT_EQ(std::pair(picture.Width(), picture.Height()), std::pair(2, 1));
        const Bitmap expected = testing::RowOf({kBlue, uncovered});
        for (int x = 0; x < 2; ++x)
            for (int channel : {testing::kBlue, testing::kGreen, testing::kRed, testing::kAlpha})
                EXPECT_NEAR(testing::ChannelAt(picture, x, 0, channel),
                            testing::ChannelAt(expected, x, 0, channel), tolerance)
                    << static_cast<int>(format) << ", " << background;
    }
}

TEST_F(ExportTest, AnIconHoldsThePageInSquaresThatStayInTheCacheFolder) {
    const struct {
        Bitmap Page;
        ExportSettings Settings;
        std::vector<int> Sizes;
    } cases[] = {
        {FilledPicture(512, 100, kBlue),
         {.LeavesScratchPictures = true},
         {256, 128, 64, 48, 32, 24, 16}},
        {FilledPicture(15, 15, kBlue),
         {.IconSizes = {{32, 15}}, .IconPictures = IconFormat::Png, .LeavesScratchPictures = true},
         {32, 15}},
    };
    ExportImage(path_, ExportFormat::Ico, FilledPicture(32, 32, kBlue), 0);
    EXPECT_FALSE(std::filesystem::exists(SizesFolder())) << "unless it is wanted";
    for (const auto& [page, settings, sizes] : cases) {
        std::vector<Bitmap> pictures;
        for (const int size : sizes)
            pictures.push_back(filters::ShrinkToSize(page, size));
        ExportImage(path_, ExportFormat::Ico, page, kRed, settings);
        EXPECT_EQ(graphics::ReadFile(path_), EncodeIcon(pictures, settings.IconPictures));
        const Bitmap left = graphics::LoadImageFromFile(folder_ / "cache/Sizes/temp32.png");
        EXPECT_TRUE(testing::SamePixels(left, filters::ShrinkToSize(page, 32)));
    }
}

TEST_F(ExportTest, ACacheFolderThatCannotBeWrittenStopsNoExport) {
    graphics::WriteFile(folder_ / "cache", std::vector<std::uint8_t>{1});
    const ExportSettings settings{.LeavesScratchPictures = true};
    ExportImage(path_, ExportFormat::Ico, FilledPicture(16, 16, kBlue), 0, settings);
    EXPECT_TRUE(std::filesystem::exists(path_));
    // A picture's name that is taken by a folder.
    testing::SetEnvironment(testing::EnvironmentIn(folder_ / "other"));
    std::filesystem::create_directories(SizesFolder() / "temp16.png");
    EXPECT_NO_THROW(
        ExportImage(path_, ExportFormat::Ico, FilledPicture(16, 16, kBlue), 0, settings));
}

TEST_F(ExportTest, FailuresOfTheOutputAreToldAndLeaveTheOldFile) {
    const Bitmap page = FilledPicture(16, 16, kBlue);
    for (const ExportFormat format : {ExportFormat::Ico, ExportFormat::Png, ExportFormat::Gif})
        EXPECT_THROW(ExportImage(folder_ / "no" / "x", format, page, 0), graphics::FileError);
    const std::vector<std::uint8_t> old = {'o', 'l', 'd'};
    graphics::WriteFile(path_, old);
    EXPECT_THROW(ExportImage(path_, ExportFormat::Png, Bitmap(), 0), graphics::FileError);
    ExportImage(path_, ExportFormat::Ico, FilledPicture(15, 15, kBlue), 0);  // too small for any
    EXPECT_EQ(graphics::ReadFile(path_), old);
    EXPECT_FALSE(std::filesystem::exists(SizesFolder()));
}

// Half transparent red on the left of a page; the right stays blank.
TEST_F(ExportTest, AGifIsTransparentOnlyWithoutAnyBackground) {
    const Bitmap page = testing::RowOf({0x80FF0000, 0});
    const struct {
        Argb Background;
        int Threshold;
        std::vector<Argb> Result;
    } cases[] = {
        {0, 128, {0xFFFF0000, 0}},
        {0, 129, {0, 0}},
        {0xFF0000FF, 129, {0xFF80007F, 0xFF0000FF}},
        // Alpha 0 with other bits: nothing is behind the picture, and nothing is transparent.
        {0x00123456, 128, {0xFFFF0000, 0xFF000000}},
    };
    for (const auto& [background, threshold, result] : cases) {
        ExportImage(path_, ExportFormat::Gif, page, background, {.GifThreshold = threshold});
        EXPECT_EQ(testing::PixelsOf(graphics::LoadImageFromFile(path_)), result);
    }
}

}  // namespace
}  // namespace orbelle::formats
