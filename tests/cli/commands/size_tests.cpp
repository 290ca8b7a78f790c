// Icon sizes with artwork of their own: made, gone to, given up, exported, saved, opened.
#include <gmock/gmock.h>

#include "formats/icon_file.h"
#include "formats/icon_reader.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "rows.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;
using Bytes = std::vector<std::uint8_t>;

constexpr graphics::Argb kBlue = 0xFF204060;
constexpr graphics::Argb kRed = 0x80FF0000;

class SizeCommands : public RowsTest {
protected:
    SizeCommands() {
        Write("blue.png", FilledPicture(64, 48, kBlue));
        Write("red.png", FilledPicture(4, 4, kRed));
    }

    static void RunAll(const std::string& script, const std::string& notes = "") {
        std::ostringstream output;
        Workspace workspace(output);
        EXPECT_EQ(RunScript(workspace, script), notes) << script;
    }
    // "256: FF204060 48: ..." in file order: the size and the pixel in the middle of each picture.
    static std::string Middles(const char* path) {
        std::string text;
        for (const formats::IconEntryImage& entry : formats::ReadIconFile(path))
            text += (text.empty() ? "" : ", ") + std::to_string(entry.Width) + " " +
                    Argbs(entry.Image.CloneArea(entry.Width / 2, entry.Height / 2, 1, 1));
        return text;
    }
};

TEST_F(SizeCommands, PagesOfSizes) {
    const std::string made = "open blue.png size 16 ";
    Check({
        {"none at first", "open blue.png", "size null, sizes "},
        {"made from the master", made,
         "size 16, sizes 16, page/width 16, page/height 16, widths 16, selected 0, undo 1, "
         "modified true, 0/opacity 1, page@0,2 FF204060, page@0,1 00000000, slider/page-width 16"},
        {"going is no step", made + "size master", "size null, sizes 16, page/width 64, undo 1"},
        {"nor is going back", made + "size master size 16", "size 16, widths 16, undo 1"},
        {"nor to where one is", made + "size 16 size master size master", "size null, undo 1"},
        {"a page of its own", made + "import red.png size master", "widths 64, selected 0, undo 2"},
        {"which is kept", made + "import red.png size master size 16", "widths 164, selected 1"},
        {"by rising size", made + "size 256 size 8", "size 8, sizes 8 16 256, undo 3"},
        {"made without the background", "open blue.png background #112233 size 16",
         "page@0,0 00000000, page/background #FF112233"},
        {"one background", made + "background #112233 size master", "page/background #FF112233"},
        {"a recipe", "open blue.png size 16 outline", "size 16, undo 1"},
        {"a recipe takes its place", made + "hue 20 import red.png size 16 fill",
         "widths 16, undo 4, 0/hue 0"},
        {"fill is a verb as well", "open blue.png foreground #102030 size 16 fill solid",
         "size 16, undo 1"},
        {"given up", made + "drop-size 16", "size null, sizes , widths 64, undo 2"},
        {"from elsewhere", made + "size 24 drop-size 16", "size null, sizes 24, undo 3"},
        {"anew", made + "import red.png drop-size 16 size 16", "widths 16, undo 4"},
        {"a layer goes from page to page", made + "copy size master paste",
         "widths 6416, undo 2, size null"},
        {"none of a new document", made + "new 9 9", "size null, sizes , undo 0"},
        {"nor of an opened picture", made + "open red.png", "size null, sizes , page/width 4"},
        {"no such artwork", "open blue.png drop-size 16",
         "error drop-size 16: the size 16 x 16 has no artwork of its own, undo 0"},
        {"artwork keeps its size", made + "page 20 20",
         "error page 20 20: the artwork of a size keeps its size, page/width 16, undo 1"},
        {"no document", "size 16", "error size 16: there is no document"},
    });
}

TEST_F(SizeCommands, OneHistoryServesAllPages) {
    const std::string work = "open blue.png opacity 50 size 16 opacity 30 size 24 opacity 20 ";
    Check({
        {"the page stays", work + "undo", "size 24, 0/opacity 1, undo 4, redo 1"},
        {"making it is undone", work + "undo undo", "size 16, sizes 16, 0/opacity 0.3"},
        {"back to the step's page", work + "size master undo", "size 24, 0/opacity 1, undo 4"},
        {"all the way", work + "undo undo undo undo", "size null, sizes , 0/opacity 0.5, undo 1"},
        {"and forth", work + "undo undo undo undo redo", "size 16, sizes 16, 0/opacity 1"},
        {"redo goes to the step's page", work + "undo size master redo", "size 24, 0/opacity 0.2"},
        {"a dropped page comes back", work + "drop-size 16 undo",
         "size 24, sizes 16 24, 0/opacity 0.2"},
        {"even when it was in force", work + "size 16 drop-size 16 undo",
         "size 16, sizes 16 24, 0/opacity 0.3"},
        {"and goes again", work + "drop-size 16 undo redo", "size null, sizes 24, 0/opacity 0.5"},
    });
}

TEST_F(SizeCommands, ExportsHoldTheFamily) {
    RunAll(
        "open blue.png opacity 37 export before.ico size 16 size 48 size master export after.ico "
        "size 256 size 20 export page.png export all.ico");
    EXPECT_EQ(graphics::ReadFile("before.ico"), graphics::ReadFile("after.ico"))
        << "plain artwork changes nothing";
    EXPECT_EQ(graphics::ReadFile("before.ico"), graphics::ReadFile("all.ico"))
        << "whatever page is in force, and the sizes are those of the master";
    EXPECT_EQ(graphics::LoadImageFromFile("page.png").Width(), 20);
    RunAll(
        "open blue.png size 16 delete import red.png size 20 import red.png background #FF00FF00 "
        "size master export own.ico icon-sizes 20 16 8 export named.ico size 20 export page.png");
    EXPECT_EQ(Middles("own.ico"),
              "64 FF204060, 48 FF204060, 32 FF204060, 24 FF204060, 16 80FF0000");
    // Red over blue: 0x20 * 127 / 255 + 128.
    EXPECT_EQ(Middles("named.ico"), "20 FF902030, 16 80FF0000, 8 FF204060");
    EXPECT_EQ(graphics::LoadImageFromFile("page.png").GetPixel(0, 0), 0xFF00FF00);
}

TEST_F(SizeCommands, DocumentsKeepTheFamily) {
    const std::string work =
        "open blue.png size 16 opacity 30 import red.png size 24 fill size master save f.volf ";
    Check({
        {"saved from a size's page", work + "size 16 save f.volf new 3 3 open f.volf",
         "size null, sizes 16 24, widths 64, undo 0, modified false, path f.volf"},
        {"its layers", work + "new 3 3 open f.volf size 16",
         "widths 164, 0/opacity 0.3, selected 1, undo 0, modified false"},
        {"going about changes nothing", work + "size 16 size 24 size master",
         "modified false, undo 4"},
        {"artwork is a change", work + "size 48", "modified true"},
    });
    Bytes file = graphics::ReadFile("f.volf");
    file.back() ^= 1;
    graphics::WriteFile("bad.volf", file);
    Check({{"a damaged family costs its sizes", "open bad.volf",
            "size null, sizes , widths 64, modified true, path , notes orbelle-cli: open bad.volf: "
            "the artwork of single sizes could not be read: its checksum is wrong\n"}});
}

TEST_F(SizeCommands, AnIconFileOpensAsAFamily) {
    Bytes icon =
        formats::EncodeIcon(std::vector{FilledPicture(32, 32, kBlue), FilledPicture(8, 8, kRed),
                                        FilledPicture(40, 6, kBlue), FilledPicture(48, 48, kRed),
                                        FilledPicture(7, 7, kBlue), FilledPicture(32, 32, kRed),
                                        FilledPicture(16, 16, kBlue)},
                            formats::IconFormat::Png);
    graphics::WriteFile("a.ico", icon);
    const std::string leftOut = "left out: image 2: 40 x 6 pixels; image 4: 7 x 7 pixels\n";
    Check("icon-entry all open a.ico ",
          "notes orbelle-cli: open a.ico: " + leftOut + ", modified false, path , ",
          {
              {"the largest is the master", "",
               "size null, sizes 8 16 32, widths 48, selected 0, undo 0, page@9,9 80FF0000"},
              {"of two the first", "size 32", "widths 32, page@9,9 FF204060, undo 0"},
          });
    Check({{"the next one as ever", "icon-entry all open red.png open a.ico open a.ico",
            "sizes , widths 32, notes orbelle-cli: open a.ico: " + leftOut},
           {"no import", "open red.png icon-entry all import a.ico",
            "widths 4, error import a.ico: an import takes one image of an icon; not all"}});

    std::vector<graphics::Bitmap> pictures(13, FilledPicture(7, 7, kBlue));
    pictures.push_back(FilledPicture(8, 8, kBlue));
    graphics::WriteFile("many.ico", formats::EncodeIcon(pictures, formats::IconFormat::Png));
    std::string ten;
    for (int i = 0; i < 10; ++i)
        ten += "image " + std::to_string(i) + ": 7 x 7 pixels; ";
    Check({{"of many ten are told", "icon-entry all open many.ico",
            "widths 8, notes orbelle-cli: open many.ico: left out: " + ten + "and 3 more\n"}});

    RunAll(
        "icon-entry all open a.ico export same.ico size 16 opacity 50 export less.ico "
        "icon-format bmp export bitmaps.ico icon-sizes 24 export 24.ico");
    EXPECT_EQ(Middles("same.ico"), "32 FF204060, 8 80FF0000, 48 80FF0000, 16 FF204060");
    EXPECT_EQ(Middles("less.ico"), "32 FF204060, 8 80FF0000, 48 80FF0000, 16 80204060");
    EXPECT_EQ(Middles("24.ico"), "24 80FF0000");
    for (const auto& [path, format] : {std::pair("same.ico", formats::IconEntryFormat::Png),
                                       {"bitmaps.ico", formats::IconEntryFormat::Bitmap}})
        for (const formats::IconEntryImage& entry : formats::ReadIconFile(path))
            EXPECT_EQ(entry.Format, format) << path << entry.Width;
}

TEST_F(SizeCommands, APngOfAnOpenedIconIsKeptByteForByteUntilItsPictureChanges) {
    // A comment that an encoder of ours would not write stands before the end.
    Bytes png = graphics::EncodePng(FilledPicture(16, 16, kBlue));
    const Bytes comment = {0,   0, 0,   4,   't',  'E',  'X',  't',
                           'a', 0, 'b', 'c', 0x1D, 0x9B, 0x38, 0x13};
    png.insert(png.end() - 12, comment.begin(), comment.end());
    const std::vector pictures{FilledPicture(16, 16, kBlue), FilledPicture(24, 24, kRed)};
    graphics::WriteFile("a.ico", formats::EncodeIcon(pictures, formats::IconFormat::Bmp,
                                                     std::vector{png, Bytes()}));
    RunAll(
        "icon-entry all open a.ico export same.ico size 16 hue 20 undo export undone.ico "
        "opacity 40 export touched.ico");
    const Bytes original = graphics::ReadFile("a.ico");
    EXPECT_EQ(graphics::ReadFile("same.ico"), original);
    EXPECT_EQ(graphics::ReadFile("undone.ico"), original);
    EXPECT_EQ(formats::ReadIconFile("touched.ico")[0].Format, formats::IconEntryFormat::Bitmap);
}

}  // namespace
}  // namespace orbelle::cli
