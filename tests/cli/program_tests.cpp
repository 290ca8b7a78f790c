// The program from outside: what it writes, prints and returns.
#include <unistd.h>

#include "cli/script.h"
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using testing::FilledPicture;
using ::testing::HasSubstr;
using testing::PictureOf;
using testing::SamePixels;
using ::testing::StartsWith;

constexpr graphics::Argb kBlue = 0xFF204060;

TEST_F(ProgramTest, InfoTellsTheDocumentInOneLine) {
    const Outcome outcome = Run({"new", "64", "48", "add-layer", "opacity", "5", "30", "background",
                                 "#80ff0000", "undo", "info"});
    EXPECT_EQ(outcome.Errors, "");
    EXPECT_EQ(
        outcome.Output,
        R"({"page":{"width":64,"height":48,"background":"#80FF0000"},"path":"","modified":true,)"
        R"("selected":1,"undo":1,"redo":1,"selection":null,"layers":[)"
        R"({"rect":[0,0,64,48],"base_rect":[0,0,64,48],"image":[64,48],"opacity":1,"scale":0,)"
        R"("visible":true,"clip_next":false,"hue":0,"saturation":40,"brightness":50,)"
        R"("contrast":50,"region":null},)"
        R"({"rect":[0,0,64,48],"base_rect":[0,0,64,48],"image":[64,48],"opacity":1,"scale":0,)"
        R"("visible":true,"clip_next":false,"hue":0,"saturation":40,"brightness":50,)"
        R"("contrast":50,"region":null}]})"
        "\n");
}

TEST_F(ProgramTest, RegionListsRunsOfPixelsRowByRow) {
    Write("a.png", PictureOf({"........",  //
                              "..##..##",  //
                              "..##..##",  //
                              ".......#",  //
                              "..##..##"}));
    // A region lies one pixel to the left of the pixels that it is made of.
    EXPECT_EQ(Run({"open", "a.png", "region", "0"}),
              (Outcome{0, "1 1 3\n1 5 7\n2 1 3\n2 5 7\n3 6 7\n4 1 3\n4 5 7\n", ""}));
    EXPECT_EQ(Run({"new", "8", "8", "region", "0", "selection"}), kSuccess);
    EXPECT_EQ(Run(SplitLine("new 8 8 tool select-rectangle drag 1 2 3 3 selection")),
              (Outcome{0, "2 1 4\n3 1 4\n", ""}));
    EXPECT_THAT(
        Run(SplitLine("open a.png opacity 30 tool select-rectangle drag 1 2 3 3 info")).Output,
        AllOf(HasSubstr(R"("selection":[1,2,3,2])"), HasSubstr(R"("opacity":0.3,)"),
              HasSubstr(R"("region":[1,1,6,4])")));
}

TEST_F(ProgramTest, LayersComeBackByteForByte) {
    graphics::Bitmap picture(3, 2);
    const graphics::Argb pixels[] = {0x00123456, 0x01FF8040, 0x80102030,
                                     0xFFFFFFFF, 0x00FFFFFF, 0xFE000001};
    std::ranges::copy(pixels, picture.MutablePixels());
    Write("a.png", picture);
    EXPECT_EQ(Run({"open", "a.png", "write-layer", "0", "layer.png"}), kSuccess);
    EXPECT_EQ(Bytes("layer.png"), Bytes("a.png"));

    EXPECT_EQ(Run({"open", "a.png", "save", "a.volf"}), kSuccess);
    EXPECT_EQ(Run({"open", "a.volf", "write-layer", "0", "layer.png"}), kSuccess);
    EXPECT_EQ(Bytes("layer.png"), Bytes("a.png"));
}

TEST_F(ProgramTest, ThePageIsWrittenWithoutItsBackground) {
    Write("a.png", PictureOf({"#.", ".#"}, kBlue));
    EXPECT_EQ(Run({"open", "a.png", "background", "#FFFFFF", "write-page", "page.png", "export",
                   "export.png"}),
              kSuccess);
    EXPECT_TRUE(SamePixels(Picture("page.png"), PictureOf({"#.", ".#"}, kBlue)));
    EXPECT_EQ(Picture("export.png").GetPixel(1, 0), 0xFFFFFFFF);
}

TEST_F(ProgramTest, TheSceneHasTheZoomInForceAndThePageInTheMiddle) {
    Write("a.png", FilledPicture(8, 8, kBlue));
    EXPECT_EQ(Run({"open", "a.png", "write-scene", "1.png", "zoom", "2.5", "write-scene", "2.png"}),
              kSuccess);
    const auto blueColumns = [&](const std::string& name) {
        const graphics::Bitmap scene = Picture(name);
        EXPECT_EQ(scene.Width(), 1024);
        EXPECT_EQ(scene.Height(), 768);
        return std::count(scene.Row(384), scene.Row(385), kBlue);
    };
    EXPECT_EQ(blueColumns("1.png"), 8);
    EXPECT_EQ(blueColumns("2.png"), 20);
    EXPECT_EQ(Picture("1.png").GetPixel(512, 387), kBlue);
}

TEST_F(ProgramTest, IconSettingsHoldForTheIconsAfterThem) {
    Write("a.png", FilledPicture(48, 48, kBlue));
    EXPECT_EQ(Run({"open", "a.png", "export", "own.ico", "icon-sizes", "32", "16", "export",
                   "two.ico", "icon-format", "png", "export", "png.ico"}),
              kSuccess);
    EXPECT_EQ(Bytes("own.ico")[4], 4);  // 48, 32, 24, 16
    const std::vector<std::uint8_t> two = Bytes("two.ico");
    EXPECT_EQ(two[4], 2);
    EXPECT_EQ(two[6], 32);
    EXPECT_EQ(two[6 + 16], 16);
    EXPECT_EQ(two[6 + 2 * 16], 40);                 // a bitmap's header
    EXPECT_EQ(Bytes("png.ico")[6 + 2 * 16], 0x89);  // a PNG's first byte
    EXPECT_TRUE(Exists("cache/Sizes/temp32.png"));
}

TEST_F(ProgramTest, CombineNeedsNoDocument) {
    Write("a.png", FilledPicture(20, 10, kBlue));
    Write("b.png", FilledPicture(256, 256, kBlue));
    EXPECT_EQ(Run({"icon-format", "png", "combine", "o.ico", "a.png", "b.png"}), kSuccess);
    const std::vector<std::uint8_t> icon = Bytes("o.ico");
    EXPECT_EQ(icon[4], 2);
    EXPECT_EQ(icon[6], 20);
    EXPECT_EQ(icon[7], 10);
    EXPECT_EQ(icon[6 + 16], 0);
    EXPECT_EQ(Run({"combine", "p.ico", "missing.png", "a.png"}),
              Failed("combine p.ico missing.png a.png: missing.png: No such file or directory"));
    EXPECT_FALSE(Exists("p.ico"));
}

TEST_F(ProgramTest, IconEntryChoosesForTheNextIconOnly) {
    for (int size : {16, 32, 48})
        Write(std::to_string(size) + ".png", FilledPicture(size, size, kBlue));
    EXPECT_EQ(Run({"combine", "a.ico", "16.png", "32.png", "48.png"}), kSuccess);
    const Outcome outcome = Run({"icon-entry", "2", "open", "a.ico", "import", "a.ico",
                                 "icon-entry", "1", "import", "16.png", "import", "a.ico", "info"});
    EXPECT_EQ(outcome.Errors, "");
    EXPECT_THAT(outcome.Output, HasSubstr(R"("page":{"width":48,"height":48)"));
    const std::string part = R"("image":[)";
    std::string sizes;
    for (auto at = outcome.Output.find(part); at != std::string::npos;
         at = outcome.Output.find(part, at + 1))
        sizes += outcome.Output.substr(at + part.size(), 2) + " ";
    EXPECT_EQ(sizes, "48 16 16 32 ");
    Write("c.ico", std::vector<std::uint8_t>{0, 0, 2, 0, 1, 0});
    EXPECT_EQ(Run({"open", "c.ico"}), Failed("open c.ico: not a Windows icon"));
}

TEST_F(ProgramTest, VerbsThatNeedADocumentSaySo) {
    for (const char* verb :
         {"save a.volf", "export a.png", "page 8 8", "select 0", "background none", "add-layer",
          "opacity 5", "style crystal", "info", "region 0", "selection", "write-page a.png",
          "write-layer 0 a.png", "write-scene a.png", "tool pencil", "click 1 1", "key left"})
        EXPECT_EQ(Run(SplitLine(verb)), Failed(std::string(verb) + ": there is no document"));
    EXPECT_FALSE(Exists("a.png"));
    EXPECT_EQ(Run({"new", "8", "8", "delete", "export", "a.png"}),
              Failed("export a.png: the document has no layer"));
    EXPECT_EQ(Run({"new", "8", "8", "delete", "save", "a.volf"}),
              Failed("save a.volf: the document has no layer"));
}

TEST_F(ProgramTest, BadPicturesAndDocumentsFailWithAReason) {
    Write("good.png", FilledPicture(20, 20, kBlue));
    ASSERT_EQ(Run({"open", "good.png", "save", "good.volf"}), kSuccess);
    const std::vector<std::uint8_t> png = Bytes("good.png");
    const std::vector<std::uint8_t> document = Bytes("good.volf");
    std::vector<std::uint8_t> huge = png;
    std::fill(huge.begin() + 16, huge.begin() + 24, 0x7F);  // the sides in its header

    Write("empty.png", std::vector<std::uint8_t>{});
    Write("cut.png", {png.begin(), png.begin() + png.size() / 2});
    Write("huge.png", huge);
    Write("document.png", document);
    Write("empty.volf", std::vector<std::uint8_t>{});
    Write("cut.volf", {document.begin(), document.begin() + document.size() / 2});
    Write("picture.volf", png);
    for (const char* name : {"missing.png", "empty.png", "cut.png", "huge.png", "document.png",
                             "missing.volf", "empty.volf", "cut.volf", "picture.volf", "."}) {
        const Outcome outcome = Run({"open", name, "write-page", "page.png"});
        EXPECT_EQ(outcome.Status, 1) << name;
        EXPECT_EQ(outcome.Output, "");
        EXPECT_THAT(outcome.Errors, StartsWith(std::string("orbelle-cli: open ") + name + ": "));
        EXPECT_EQ(std::ranges::count(outcome.Errors, '\n'), 1) << name;
    }
    EXPECT_EQ(Run({"import", "missing.png"}),
              Failed("import missing.png: No such file or directory"));
    EXPECT_FALSE(Exists("page.png"));
}

TEST_F(ProgramTest, TargetsThatCannotBeWrittenFailWithAReason) {
    for (const std::string verb : {"save", "export", "write-page", "write-scene"}) {
        EXPECT_EQ(Run({"new", "16", "16", verb, "no/a.png"}),
                  Failed(verb + " no/a.png: No such file or directory"));
    }
    EXPECT_EQ(Run({"new", "16", "16", "write-layer", "0", "no/a.png"}),
              Failed("write-layer 0 no/a.png: No such file or directory"));
}

TEST_F(ProgramTest, NothingRunsWhenAnyWordIsWrong) {
    EXPECT_EQ(Run({"new", "16", "16", "write-page", "a.png", "opacity", "-5"}),
              WrongUsage("opacity -5: V must be from 0 to 100"));
    EXPECT_FALSE(Exists("a.png"));
    EXPECT_EQ(Run({"new", "16", "16", "--help"}), WrongUsage("--help: unknown verb"));
    EXPECT_EQ(Run({}).Status, 2);
    EXPECT_EQ(Run({"--frobnicate"}).Status, 2);
    EXPECT_EQ(Run({"--script"}).Status, 2);
    EXPECT_EQ(Run({"--script", "a", "undo"}).Status, 2);
}

TEST_F(ProgramTest, ScriptsComeFromFilesAndStandardInput) {
    const std::string script =
        "# a page\nnew 16 16\nbackground #FF8800 # orange\n"
        "export \"my page.png\"\n";
    EXPECT_EQ(Run({"--script", "-"}, script), kSuccess);
    EXPECT_EQ(Picture("my page.png").GetPixel(0, 0), 0xFFFF8800);

    Write("a.txt", {script.begin(), script.end()});
    std::filesystem::remove(folder / "my page.png");
    EXPECT_EQ(Run({"--script", "a.txt"}), kSuccess);
    EXPECT_TRUE(Exists("my page.png"));

    EXPECT_EQ(Run({"--script", "-"}, "new 8 8\nsave a.volf\nselect x"),
              WrongUsage("standard input: line 3: select x: N must be a whole number"));
    EXPECT_FALSE(Exists("a.volf"));
    EXPECT_EQ(Run({"--script", "-"}, "open \"no page.png\""),
              Failed("open \"no page.png\": No such file or directory"));
    EXPECT_EQ(Run({"--script", "none"}), WrongUsage("none: No such file or directory"));
    EXPECT_EQ(Run({"--script", "."}).Status, 2);
}

TEST_F(ProgramTest, HelpNamesEveryVerb) {
    const Outcome help = Run({"--help"});
    EXPECT_EQ(help.Status, 0);
    for (const auto verbs : {FileVerbs(), PageVerbs(), LayerVerbs(), ToolVerbs(), PointerVerbs(),
                             StackVerbs(), ReportVerbs()}) {
        EXPECT_FALSE(verbs.empty());
        for (const Verb& verb : verbs)
            EXPECT_THAT(help.Output, HasSubstr("\n  " + std::string(verb.Name)));
    }
    EXPECT_THAT(Run({"--version"}).Output, StartsWith("orbelle-cli "));
}

}  // namespace
}  // namespace orbelle::cli
