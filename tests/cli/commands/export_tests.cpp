// Exports and what is said about them: sizes, hot spots, whole sets, how PNG pictures are packed.
#include <gmock/gmock.h>

#include <filesystem>

#include "formats/icon_reader.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "rows.h"

namespace orbelle::cli {
namespace {

using graphics::Bitmap;
using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060;

class ExportVerbsTest : public RowsTest {
protected:
    ExportVerbsTest() {
        Write("blue.png", FilledPicture(64, 48, kBlue));
        Write("square.png", FilledPicture(64, 64, kBlue));
    }

    static std::string Run(const std::string& script) {
        std::ostringstream output;
        Workspace workspace(output);
        return RunScript(workspace, script);
    }
    // "WxH" of a picture.
    static std::string SizeOf(const char* path) {
        const Bitmap picture = graphics::LoadImageFromFile(path);
        return std::to_string(picture.Width()) + "x" + std::to_string(picture.Height());
    }
    // "SIZE X Y, ..." of a pointer file, "SIZE, ..." of an icon.
    static std::string Entries(const char* path) {
        std::string text;
        for (const formats::IconEntryImage& entry : formats::ReadIconFile(path)) {
            text += (text.empty() ? "" : ", ") + std::to_string(entry.Width);
            if (entry.Hotspot)
                text +=
                    " " + std::to_string(entry.Hotspot->X) + " " + std::to_string(entry.Hotspot->Y);
        }
        return text;
    }
};

TEST_F(ExportVerbsTest, PicturesOfASize) {
    EXPECT_EQ(Run("open blue.png export-size 128 export large.png export large.jpg export-size 32 "
                  "export small.gif size 16 export mine.bmp background #FF0000 export-size 16 "
                  "size master export own.png export-size page export page.png"),
              "");
    EXPECT_EQ(SizeOf("large.png"), "128x96");
    EXPECT_EQ(SizeOf("large.jpg"), "128x96");
    EXPECT_EQ(SizeOf("small.gif"), "32x24");
    EXPECT_EQ(SizeOf("mine.bmp"), "32x24");  // of the master, though a size's page is in force
    EXPECT_EQ(SizeOf("own.png"), "16x16");
    EXPECT_EQ(Argbs(graphics::LoadImageFromFile("own.png").CloneArea(0, 0, 1, 1)), "FFFF0000");
    EXPECT_EQ(SizeOf("page.png"), "64x48");
}

TEST_F(ExportVerbsTest, HotSpotsGoWithTheSize) {
    EXPECT_EQ(Run("open square.png hotspot 63 31 icon-sizes 64 16 128 export a.cur "
                  "open blue.png hotspot 10 47 icon-sizes 16 export b.cur"),
              "");
    // 63 * 16 / 64 = 15.75, 31 * 16 / 64 = 7.75; in 128 the picture has its own size, 32 from the
    // corner.
    EXPECT_EQ(Entries("a.cur"), "64 63 31, 16 15 7, 128 95 63");
    // 12 rows, two from the top.
    EXPECT_EQ(Entries("b.cur"), "16 2 13");

    EXPECT_EQ(Run("icon-entry 1 open a.cur icon-sizes 16 export c.cur"), "");
    EXPECT_EQ(Entries("c.cur"), "16 15 7");
    EXPECT_EQ(Run("icon-entry all open a.cur export d.cur"), "");
    EXPECT_EQ(Entries("d.cur"), "64 47 31, 16 11 7, 128 95 63");
    for (const char* outside : {"64 0", "0 64", "-1 0"})
        EXPECT_THAT(Run(std::string("open square.png hotspot ") + outside + " export no.cur"),
                    ::testing::HasSubstr("lies outside the page"));
    EXPECT_FALSE(std::filesystem::exists("no.cur"));
}

TEST_F(ExportVerbsTest, ListsOfSizes) {
    EXPECT_EQ(Run("open square.png icon-sizes windows export w.ico icon-sizes favicon export f.ico "
                  "icon-sizes 20 48 export two.ico icon-sizes table export t.ico"),
              "");
    EXPECT_EQ(Entries("w.ico"), "16, 20, 24, 30, 32, 36, 40, 48, 60, 64, 72, 80, 96, 256");
    EXPECT_EQ(Entries("f.ico"), "16, 32, 48");
    EXPECT_EQ(Entries("t.ico"), "64, 48, 32, 24, 16");
    EXPECT_EQ(Run("icon-entry all open two.ico export own.ico icon-sizes table export table.ico"),
              "");
    EXPECT_EQ(Entries("own.ico"), "20, 48");
    EXPECT_EQ(Entries("table.ico"), "48, 32, 24, 16");
}

TEST_F(ExportVerbsTest, SmallFilesShowTheSame) {
    EXPECT_EQ(Run("open blue.png style crystal export fast.png compress small export small.png "
                  "icon-format png export small.ico compress fast export again.png"),
              "");
    EXPECT_EQ(graphics::ReadFile("fast.png"), graphics::ReadFile("again.png"));
    EXPECT_LT(graphics::ReadFile("small.png").size(), graphics::ReadFile("fast.png").size());
    EXPECT_EQ(Argbs(graphics::LoadImageFromFile("fast.png")),
              Argbs(graphics::LoadImageFromFile("small.png")));
    EXPECT_EQ(Run("icon-format png combine fast.ico fast.png compress small "
                  "combine small.ico fast.png"),
              "");
    EXPECT_LT(graphics::ReadFile("small.ico").size(), graphics::ReadFile("fast.ico").size());
}

TEST_F(ExportVerbsTest, SetsAreNamedAfterTheFile) {
    EXPECT_EQ(Run("new 8 8 export-set a windows open square.png export-set a macos windows save "
                  "\"b c.volf\" export-set a linux"),
              "");
    EXPECT_EQ(Entries("a/windows/icon.ico"),
              "16, 20, 24, 30, 32, 36, 40, 48, 60, 64, 72, 80, 96, 256");
    EXPECT_EQ(Entries("a/windows/square.ico"), Entries("a/windows/icon.ico"));
    EXPECT_EQ(SizeOf("a/linux/hicolor/512x512/apps/b c.png"), "512x512");
    EXPECT_THAT(Run("new 8 8 delete export-set a web"),
                ::testing::HasSubstr("the document has no layer"));
    graphics::WriteFile("file", {});
    EXPECT_THAT(Run("open square.png export-set file web"), ::testing::HasSubstr("file"));
}

}  // namespace
}  // namespace orbelle::cli
