// Documents: new, opened, imported, saved; page size and background; undo over all of them.
#include <gmock/gmock.h>

#include "cli/document_json.h"
#include "formats/icon_file.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "rows.h"
#include "support/editor_account.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;

constexpr graphics::Argb kBlue = 0xFF204060;

class DocumentCommands : public RowsTest {
protected:
    DocumentCommands() {
        Write("a.png", FilledPicture(12, 10, kBlue));
        Write("b.png", FilledPicture(30, 6, 0x80FF0000));
        Write("large.png", FilledPicture(600, 400, kBlue));
        const std::vector<graphics::Bitmap> images{FilledPicture(16, 16, kBlue),
                                                   FilledPicture(40, 6, kBlue)};
        graphics::WriteFile("a.ICO", formats::EncodeIcon(images, formats::IconFormat::Bmp));
        graphics::WriteFile("bad.volf", std::vector<std::uint8_t>(100, 'x'));
        WriteDocument("none.volf", 9, 7, {});
    }
};

TEST_F(DocumentCommands, WhatEachMakes) {
    Check({
        {"new", "background-colour #112233 new 64 48",
         "widths 64, selected 0, 0/rect 0 0 64 48, 0/size 64 48, 0/region null, modified false, "
         "undo 0, title Varnel Orbelle - Project *, slider/opacity 100, slider/page-width 64, "
         "slider/page-height 48"},
        {"the ends", "new 1 512", "page/width 1, page/height 512"},
        {"the old background", "new 8 8 background #112233 new 9 9", "page/background #FF112233"},
        {"no selection", "new 8 8 tool select-rectangle drag 1 1 3 3 new 9 9", "selection null"},
        {"new after work", "open a.png import b.png hue 20 new 3 3",
         "widths 3, undo 0, redo 0, modified false, slider/hue 0, slider/scale 50, page/width 3"},
        {"a picture makes the page", "open large.png",
         "page/width 600, page/height 400, widths 600, selected 0, undo 0, modified false, "
         "page@599,399 FF204060, slider/page-width 600"},
        {"the first import, too", "import large.png", "page/width 600, widths 600, undo 0"},
        {"an import is centred and one step", "new 20 20 import b.png",
         "selected 1, 1/rect -5 7 30 6, 1/base_rect -5 7 30 6, modified true, undo 1"},
        {"above the selected one", "new 20 20 import b.png select 0 import a.png",
         "widths 201230, selected 1, undo 2"},
        {"undo", "new 20 20 import b.png select 0 import a.png undo", "widths 2030, selected 0"},
        {"an image of an icon", "icon-entry 1 open a.ICO", "page/width 40, page/height 6, path "},
        {"the first is taken next", "icon-entry 1 open a.ICO import a.ICO",
         "1/rect 12 -5 16 16, 1@15,15 FF204060, undo 1"},
        {"not of another picture", "icon-entry 1 open a.png import a.ICO", "widths 1240"},
        {"saved and opened", "open a.png import b.png opacity 33 save s.volf new 3 3 open s.volf",
         "widths 1230, selected 1, 1/opacity 0.33, slider/opacity 33, undo 0, modified false, "
         "1/rect -9 2 30 6, path s.volf, title s.volf - Varnel Orbelle, slider/page-width 12"},
        {"saving", "open a.png add-layer save s.volf",
         "modified false, undo 1, path s.volf, title s.volf - Varnel Orbelle"},
        {"a new document has no path", "open a.png save s.volf new 3 3", "path "},
        {"an import of a document opens it", "open a.png save s.volf new 3 3 import s.volf",
         "page/width 12, path s.volf, undo 0"},
        {"fitted", "new 20 20 import-fit b.png",
         "widths 2020, 1/rect 0 8 20 4, 1/base_rect 0 8 20 4, 1/size 20 4, undo 1"},
        {"fitted upright", "new 100 20 import-fit large.png",
         "1/rect 35 0 30 20, page@35,19 FF204060"},
        {"never enlarged", "new 20 20 import-fit a.png", "1/rect 4 5 12 10"},
        {"a fitted one makes the page", "import-fit large.png", "page/width 600, undo 0"},
        {"a document without layers", "open none.volf", "widths , selected -1, page/width 9"},
        {"a bad document first", "open bad.volf", "error open bad.volf: Invalid File"},
    });
}

TEST_F(DocumentCommands, WhatFailsLeavesEverythingAsItWas) {
    const std::string none = "No such file or directory";
    const std::string size = "Please input a integer from 1 to 512.";
    const std::pair<std::string, std::string> failures[] = {
        {"import no.png", none},
        {"open no.png", none},
        {"save no/s.volf", none},
        {"open bad.volf", "Invalid File"},
        {"open a.ICO", "there is no image 2; the icon has 2"},
        {"new 0 8", size},
        {"new 8 513", size},
        {"new -1 8", size},
        {"new 99999999999 8", size},
    };
    for (const auto& [verb, reason] : failures)
        Check("open a.png background #112233 import b.png undo icon-entry 2 ",
              "widths 12, selected 0, undo 1, redo 1, modified true, page/width 12, path , title "
              "Varnel Orbelle - Project *, error ",
              {{"fails", verb, verb + ": " + reason}});
}

// A pointer of one good bitmap and one PNG between two bad images.
TEST_F(DocumentCommands, ImagesOfAnIconAreCountedInFileOrder) {
    const std::vector<graphics::Bitmap> images{
        FilledPicture(3, 2, kBlue), FilledPicture(4, 2, kBlue), FilledPicture(1, 1, 0x80FF0000),
        FilledPicture(2, 2, kBlue)};
    std::vector<std::uint8_t> icon = formats::EncodeIcon(images, formats::IconFormat::Bmp);
    icon[2] = 2;
    icon[6 + 16 + 4] = 7;              // the second one's hot spot
    icon[6 + 64 + 14] = 33;            // the first one's bits
    icon.resize(icon.size() - 8 - 1);  // the last one's mask, and a byte of its pixels
    graphics::WriteFile("a.cur", icon);
    graphics::WriteFile("p.ico",
                        formats::EncodeIcon(std::span(images).first(2), formats::IconFormat::Png));
    const std::string last =
        ": image 3: the BMP picture is cut short or damaged: too little data for its size";
    Check({
        {"the bad first", "open a.cur",
         "error open a.cur: image 0: the BMP picture is of a kind that is not supported"},
        {"the second", "icon-entry 1 open a.cur import a.cur",
         "widths 4, error import a.cur: image 0: the BMP picture is of a kind that is not "
         "supported"},
        {"the third", "icon-entry 2 open a.cur", "widths 1, 0@0,0 80FF0000"},
        {"the last is cut short", "icon-entry 3 open a.cur", "error open a.cur" + last},
        {"none", "icon-entry 4 open a.cur",
         "error open a.cur: there is no image 4; the icon has 4"},
        {"a PNG", "icon-entry 1 open p.ico", "widths 4, 0@3,1 FF204060"},
    });
    std::ostringstream output;
    Workspace workspace(output);
    ASSERT_EQ(RunScript(workspace, "entries a.cur"), "");
    EXPECT_EQ(output.str(),
              R"([{"width":0,"height":0,"bits":0,"format":"bad","bytes":72,"hotspot":[1,32]},)"
              R"({"width":4,"height":2,"bits":32,"format":"bmp","bytes":80,"hotspot":[7,32]},)"
              R"({"width":1,"height":1,"bits":32,"format":"bmp","bytes":48,"hotspot":[1,32]},)"
              R"({"width":2,"height":2,"bits":32,"format":"bad","bytes":55,"hotspot":[1,32]}])"
              "\n");
    EXPECT_THAT(RunScript(workspace, "entries a.png"), ::testing::HasSubstr("not a Windows icon"));
}

// Whatever a file is called.
TEST_F(DocumentCommands, TheFirstBytesTellWhatAFileIs) {
    const auto copy = [](const char* from, const char* to) {
        std::filesystem::copy_file(from, to);
    };
    WriteDocument("d.volf", 9, 7, {{FilledPicture(5, 4, kBlue), {}}});
    graphics::WriteFile("p.bmp", graphics::EncodeBmp(FilledPicture(3, 2, kBlue)));
    for (const auto& [from, to] : {std::pair("d.volf", "document.png"),
                                   {"d.volf", "document.ico"},
                                   {"d.volf", "document"},
                                   {"a.png", "picture.ico"},
                                   {"a.png", "picture.volf"},
                                   {"p.bmp", "bitmap.ico"},
                                   {"a.ICO", "icon.png"},
                                   {"a.ICO", "icon.volf"}})
        copy(from, to);
    graphics::WriteFile("pointer.ico", std::vector<std::uint8_t>{0, 0, 3, 0, 1, 0, 0, 0, 0, 0});
    graphics::WriteFile("text.ico", std::vector<std::uint8_t>(100, 'x'));
    const std::string none = ": not a PNG; JPEG; GIF; BMP; WebP or SVG picture";
    Check({
        {"a document", "open document.png", "widths 5, page/width 9, path document.png"},
        {"as an icon", "open document.ico", "widths 5, path document.ico"},
        {"without a name", "open document", "path document, title document - Varnel Orbelle"},
        {"imported", "new 3 3 import document.png", "widths 5, path document.png"},
        {"a picture", "open picture.volf", "widths 12, path "},
        {"as an icon", "icon-entry 1 open picture.ico icon-entry 0 import b.png", "widths 1230"},
        {"a bitmap", "new 3 3 import bitmap.ico", "widths 33, undo 1"},
        {"an icon", "icon-entry 1 open icon.png", "widths 40"},
        {"as a document", "icon-entry 1 open icon.volf", "widths 40, path "},
        {"a pointer", "open pointer.ico", "error open pointer.ico" + none},
        {"nothing", "open text.ico", "error open text.ico" + none},
    });
}

TEST_F(DocumentCommands, ADamagedDocumentHasNoPath) {
    const Placed layer{FilledPicture(5, 4, kBlue), {}};
    WriteDocument("d.volf", 9, 7, {layer, {FilledPicture(6, 4, kBlue), {}}, layer});
    std::vector<std::uint8_t> whole = graphics::ReadFile("d.volf");
    const auto write = [&](const char* name, std::size_t bytes) {
        graphics::WriteFile(name, std::span(whole).first(bytes));
    };
    const std::size_t layerBytes = (whole.size() - 34) / 3 + 1;
    write("two.volf", whole.size() - 1);
    write("one.volf", 34 + layerBytes + 10);
    write("none.volf", 34 + 10);
    whole[34 + 76] ^= 1;
    write("lost.volf", whole.size());
    const std::string changed =
        ", path , modified true, undo 0, title Varnel Orbelle - Project *, notes orbelle-cli: "
        "open ";
    const std::string cut = ": the file is cut short; ";
    Check("open a.png save s.volf ", "",
          {
              {"two of three", "open two.volf",
               "widths 56, selected 1, page/width 9" + changed + "two.volf: layer 2" + cut +
                   "2 of 3 layers could be read\n"},
              {"one", "open one.volf",
               "widths 5" + changed + "one.volf: layer 1" + cut + "1 of 3 layers could be read\n"},
              {"a picture", "import lost.volf",
               "widths 65, path , modified true, notes orbelle-cli: import lost.volf: layer 0: not "
               "a PNG; JPEG; GIF or BMP picture; 2 of 3 layers could be read\n"},
              {"none", "open none.volf",
               "widths 12, path s.volf, modified false, error open none.volf: layer 0: the file is "
               "cut short"},
              {"saved elsewhere", "open one.volf save new.volf",
               "path new.volf, modified false, notes orbelle-cli: open one.volf: layer 1" + cut +
                   "1 of 3 layers could be read\n"},
          });
}

// What could not be opened again is refused before it changes anything. There is room for one more
// layer of the page's size.
TEST_F(DocumentCommands, ADocumentStaysSmallEnoughToBeOpened) {
    const Placed covering{graphics::Bitmap(1, 1), {0, 0, 10240, 1024}};
    WriteDocument("d.volf", 10240, 1024, std::vector<Placed>(8, covering));
    Write("over.png", graphics::Bitmap(10240, 1025));
    const std::string pixels =
        ": The page and its layers have 115343360 pixels together; more than the 104857600 that a "
        "document can hold.";
    Check("open d.volf ", "page/width 10240, widths 11111111",
          {
              {"a picture", "import over.png",
               ", undo 0, modified false, error import over.png: the picture of 10240 x 1025 "
               "pixels is too large: there is room for 10485760 pixels"},
              {"the last layer", "add-layer", "10240, undo 1"},
              {"one more", "add-layer add-layer", "10240, undo 1, error add-layer" + pixels},
              {"a style", "add-layer style shade", "10240, undo 1, error style shade" + pixels},
              {"a copy", "copy paste paste", "10240, undo 1, error paste" + pixels},
              {"another", "add-layer delete add-layer", "10240, undo 3"},
          });
}

TEST_F(DocumentCommands, PageAndBackgroundAreSteps) {
    Check({
        {"the sliders stop at their ends", "new 20 20 page 900 -5",
         "page/width 512, page/height 1, 0/rect 0 0 20 20, undo 2, modified true, "
         "slider/page-width 512, slider/page-height 1"},
        {"huge numbers", "new 9 9 page -99999999999 99999999999", "page/width 1, page/height 512"},
        {"one side", "new 9 9 page 9 7", "page/height 7, undo 1"},
        {"neither", "new 9 9 page 9 9", "undo 0, modified false"},
        {"undo takes them back one by one", "new 9 9 page 5 6 undo",
         "page/width 5, page/height 9, slider/page-height 9, undo 1, redo 1"},
        {"and redo", "new 9 9 page 5 6 undo undo redo redo",
         "page/width 5, page/height 6, slider/page-width 5, undo 2, redo 0"},
        {"a picture larger than the sliders", "open large.png page 9999 9999",
         "page/width 600, page/height 512, undo 1"},
        {"small and back", "open large.png page 5 5 page 600 400",
         "page/width 600, slider/page-width 600, undo 4"},
        {"background", "new 20 20 background #80102030",
         "page/background #80102030, undo 1, modified true"},
        {"none", "new 2 2 background none",
         "page/background #00000000, page@0,0 00000000, undo 0, modified false"},
        {"the same twice", "new 2 2 background #102030 background #102030", "undo 1"},
        {"undo", "new 2 2 background #102030 background none undo",
         "page/background #FF102030, undo 1, redo 1"},
        {"redo", "new 2 2 background #102030 undo redo", "page/background #FF102030, redo 0"},
        {"with layers in between",
         "new 9 9 page 5 9 add-layer page 5 6 background #102030 undo "
         "undo undo",
         "widths 9, page/width 5, page/height 9, page/background #00000000, undo 1, redo 3"},
        {"a selection keeps what lies on the page",
         "new 20 20 tool select-rectangle page 9 20 drag 1 1 8 8 page 30 20 drag 1 1 25 8 undo",
         "selection/runs 1-8: 1-8"},
        {"a new page has no old steps", "new 9 9 page 5 6 new 8 8", "undo 0, page/width 8"},
    });
}

TEST_F(DocumentCommands, UndoAndRedoKeepTheSliders) {
    Check("open a.png ", "",
          {{"a selected row shows its sliders", "opacity 40 contrast 80 add-layer select 0",
            "slider/opacity 40, slider/contrast 80, undo 3"},
           {"a new layer has neutral ones", "contrast 80 hue 9 saturation 3 add-layer",
            "slider/contrast 50, slider/hue 0, slider/saturation 40, slider/opacity 100"},
           {"undo", "hue 70 undo", "slider/hue 0, 0/hue 0, redo 1"},
           {"redo", "hue 70 undo redo", "slider/hue 70, 0/hue 70, undo 1"}});
}

// Every edit, with so many steps free: one that takes two is refused as a whole.
TEST_F(DocumentCommands, AFullHistoryLeavesEverything) {
    const std::pair<int, std::string> lists[] = {
        {0,
         "add-layer,import b.png,page 9 10,background #102030,opacity 5,hue 5,contrast 5,scale "
         "60,order back,flip vertical,"
         "rotate cw,delete,merge,cut,copy paste,style hot,style blur,style mac,style ios,"
         "style shadow,style vista,key left,key delete,tool move drag 5 5 7 7,"
         "tool pencil drag 5 5 7 7,tool filled-ellipse drag 1 1 7 7,tool pencil-eraser click 5 5,"
         "tool brush-eraser click 5 5"},
        {1,
         "page 9 9,merge,style crystal,style reflection,style shade,style fresh,style "
         "origami-vertical"}};
    std::vector<std::pair<int, std::string>> edits;
    for (const auto& [free, list] : lists)
        for (const std::string& edit : Split(list, ","))
            edits.emplace_back(free, edit);
    for (const auto& [free, edit] : edits) {
        SCOPED_TRACE(edit);
        std::ostringstream output;
        Workspace workspace(output);
        ASSERT_EQ(RunScript(workspace, "open a.png foreground #FF0000 import a.png"), "");
        editing::Editor& editor = workspace.Editor;
        while (editor.History.UndoIndex() < document::UndoHistory::kMaxSnapshots - free)
            editor.History.PushSnapshot(editor.Document, "Step");
        const auto account = [&] {
            return DescribeDocument(editor) + testing::AccountOf(editor.Page()) +
                   testing::AccountOf(editor.Canvas);
        };
        const std::string before = account();
        EXPECT_NE(RunScript(workspace, edit).find("The undo history is full after 5001 changes."),
                  std::string::npos);
        EXPECT_EQ(account(), before);
        EXPECT_TRUE(std::holds_alternative<std::monostate>(editor.Drag));
        EXPECT_EQ(workspace.Host.HasPicture(), edit == "copy paste");
    }
}

// A document may come with more; nothing adds another one.
TEST_F(DocumentCommands, ThereAreAtMost101Layers) {
    const Placed tile{FilledPicture(12, 10, kBlue), {}};
    WriteDocument("101.volf", 12, 10, std::vector<Placed>(101, tile));
    WriteDocument("200.volf", 12, 10, std::vector<Placed>(200, tile));
    const std::string refusal = ": A document can't have more than 101 layers.";
    Check({{"one fits", "open 101.volf delete style crystal", "undo 3, selected 100"},
           {"and no other", "open 101.volf delete add-layer import b.png",
            "undo 2, selected 100, error import b.png" + refusal},
           {"too many already", "open 200.volf flip vertical undo style crystal",
            "undo 0, redo 1, selected 199, error style crystal" + refusal},
           {"nor lifted", "open 200.volf tool select-rectangle drag 2 2 6 6 tool move click 3 3",
            "undo 0, selection/runs 2-6: 2-6, error click 3 3" + refusal},
           {"changed all the same", "open 200.volf opacity 5 merge delete undo page 9 9",
            "undo 5, selected 198"}});
}

}  // namespace
}  // namespace orbelle::cli
