#include "formats/icon_sets.h"

#include <gmock/gmock.h>

#include <fstream>

#include "formats/export_icon.h"
#include "formats/icns_file.h"
#include "formats/icon_reader.h"
#include "formats/set_texts.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "support/pictures.h"
#include "support/random_pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

namespace fs = std::filesystem;
using graphics::Argb;
using graphics::Bitmap;
using testing::FilledPicture;

constexpr Argb kBlue = 0xFF0000FF;

std::vector<std::string> PathsOf(IconSet set) {
    std::vector<std::string> paths;
    for (const SetFile& file : FilesOfSet(set, "my.icon", 0))
        paths.push_back(file.Path);
    return paths;
}

TEST(IconSets, HaveTheFilesThatTheirPlatformsLookFor) {
    EXPECT_THAT(PathsOf(IconSet::Windows), ::testing::ElementsAre("windows/my.icon.ico"));
    EXPECT_THAT(PathsOf(IconSet::MacOs), ::testing::ElementsAre("macos/my.icon.icns"));
    EXPECT_THAT(PathsOf(IconSet::Linux),
                ::testing::AllOf(::testing::SizeIs(10),
                                 ::testing::Contains("linux/hicolor/22x22/apps/my.icon.png"),
                                 ::testing::Contains("linux/hicolor/512x512/apps/my.icon.png")));
    EXPECT_THAT(PathsOf(IconSet::Android),
                ::testing::IsSupersetOf({"android/mipmap-mdpi/ic_launcher.png",
                                         "android/mipmap-xxxhdpi/ic_launcher_foreground.png",
                                         "android/mipmap-anydpi-v26/ic_launcher.xml",
                                         "android/values/ic_launcher_background.xml"}));
}

TEST(IconSets, PicturesStandOnTheirGrounds) {
    const SetSource clear{{FilledPicture(64, 64, kBlue)}, 0, "a"};
    const SetSource reddish{{FilledPicture(64, 32, kBlue)}, 0x80FF0000, "a"};
    const struct {
        const SetSource& Source;
        SetPicture Picture;
        int X, Y;
        Argb Expected;
    } cases[] = {
        // The icon of 66 in the middle of 108, and that of 98 in the middle of 162.
        {clear, {108, 66, Ground::None}, 20, 54, 0},
        {clear, {108, 66, Ground::None}, 21, 54, kBlue},
        {clear, {108, 66, Ground::None}, 86, 54, kBlue},
        {clear, {108, 66, Ground::None}, 87, 54, 0},
        {clear, {162, 98, Ground::None}, 31, 81, 0},
        {clear, {162, 98, Ground::None}, 129, 32, kBlue},
        {clear, {512, 410, Ground::Opaque}, 50, 256, 0xFFFFFFFF},
        {clear, {512, 410, Ground::Opaque}, 51, 460, kBlue},
        // A page that is not square lies in the middle, over half red, and that over white.
        {reddish, {64, 64, Ground::None}, 0, 0, 0},
        {reddish, {64, 64, Ground::Page}, 0, 0, 0x80FF0000},
        {reddish, {64, 64, Ground::Page}, 0, 16, kBlue},
        {reddish, {64, 64, Ground::Opaque}, 0, 0, 0xFFFF7F7F},
        {reddish, {128, 128, Ground::None}, 0, 95, kBlue},
        {reddish, {128, 128, Ground::None}, 0, 96, 0},
    };
    for (const auto& [source, picture, x, y, expected] : cases) {
        const Bitmap drawn = DrawSetPicture(source, picture);
        EXPECT_EQ(drawn.Width(), picture.Side);
        EXPECT_EQ(drawn.GetPixel(x, y), expected) << picture.Side << ": " << x << ", " << y;
    }
    EXPECT_EQ(DrawSetPicture(clear, {180, 180, Ground::Opaque}).Format(),
              graphics::PixelFormat::Rgb24);
}

TEST(IconSets, ASizeWithArtworkIsThatArtwork) {
    const SetSource source{
        {FilledPicture(64, 64, kBlue), {{48, FilledPicture(48, 48, 0xFFFFFF00)}}}, 0, "a"};
    EXPECT_EQ(DrawSetPicture(source, {48, 48, Ground::Page}).GetPixel(5, 5), 0xFFFFFF00);
    EXPECT_EQ(DrawSetPicture(source, {192, 192, Ground::Page}).GetPixel(5, 5), kBlue);
}

// What several files hold is packed once: each must have got the picture of its own size.
TEST(IconSets, PicturesThatFilesShareStandWhereTheyBelong) {
    std::mt19937 random(4);
    const SetSource source{{testing::RandomPicture(random, 64, 64),
                            {{256, testing::RandomPicture(random, 256, 256)},
                             {32, testing::RandomPicture(random, 32, 32)}}},
                           0,
                           "a"};
    const auto pictureOf = [&](int side) {
        return DrawSetPicture(source, {side, side, Ground::None});
    };
    const auto pngOf = [&](int side) {
        return EncodePng(pictureOf(side), graphics::PngPacking::Fast);
    };
    std::vector<std::vector<std::uint8_t>> ofMac;
    for (const IcnsType& type : kIcnsTypes)
        ofMac.push_back(pngOf(type.Side));
    const testing::TemporaryFolder folder;
    ExportIcon(folder / "a.icns", IconKind::MacOs, source.Family, {});
    EXPECT_EQ(graphics::ReadFile(folder / "a.icns"), EncodeIcns(ofMac));

    const IconSet sets[] = {IconSet::Windows, IconSet::MacOs, IconSet::Linux};
    for (const RenderedSet& set : RenderSets(source, sets, {}))
        WriteSet(folder.Path(), set);
    const auto read = [&](const std::string& name) { return graphics::ReadFile(folder / name); };
    EXPECT_EQ(read("macos/a.icns"), EncodeIcns(ofMac));
    for (const int side : {16, 32, 256, 512}) {
        const std::string size = std::to_string(side);
        EXPECT_EQ(read("linux/hicolor/" + size + "x" + size + "/apps/a.png"), pngOf(side));
    }
    std::vector<Bitmap> ofWindows;
    for (const IconEntryImage& entry : ReadIconFile(folder / "windows/a.ico"))
        ofWindows.push_back(pictureOf(entry.Width));
    EXPECT_EQ(read("windows/a.ico"), EncodeIcon(ofWindows, IconFormat::Png256));
}

TEST(IconSets, ASetThatFailsLeavesNothing) {
    const testing::TemporaryFolder folder;
    const SetSource source{{FilledPicture(16, 16, kBlue)}, 0, "a"};
    const IconSet sets[] = {IconSet::Ios, IconSet::Web};
    const std::vector<RenderedSet> rendered = RenderSets(source, sets, {});
    fs::create_directories(folder / "web/head.html");
    WriteSet(folder.Path(), rendered[0]);
    EXPECT_TRUE(fs::exists(folder / "ios/AppIcon.appiconset/Contents.json"));
    EXPECT_THROW(WriteSet(folder.Path(), rendered[1]), graphics::FileError);
    EXPECT_FALSE(fs::exists(folder / "web/favicon.ico"));

    fs::remove(folder / "web/head.html");
    WriteSet(folder.Path(), rendered[1]);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "web"), fs::directory_iterator()), 7);
    EXPECT_THROW(RenderSets({}, sets, {}), Error);
}

TEST(SetTexts, NamesAndColorsInThem) {
    const std::pair<std::string, const char*> cases[] = {
        {"plain", "plain"},
        {"a\"b\\c\n", "a\\\"b\\\\c\\u000A"},
        {"gr\xC3\xBC\xF0\x9F\x8E\xA8", "gr\xC3\xBC\xF0\x9F\x8E\xA8"},
        {"\xFF"
         "a\xC3",
         "\xEF\xBF\xBD"
         "a\xEF\xBF\xBD"},
        // A longer form than needed, and half of a pair.
        {"\xC0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto& [name, escaped] : cases)
        EXPECT_EQ(EscapedForJson(name), escaped);
    EXPECT_THAT(AdaptiveBackground(0xFF01AB3C), ::testing::HasSubstr(">#01AB3C<"));
}

}  // namespace
}  // namespace orbelle::formats
