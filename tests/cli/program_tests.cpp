// The program from outside: what it writes, prints and returns.
#include "program_fixture.h"

namespace orbelle::cli {
namespace {

using ::testing::ElementsAre;
using testing::FilledPicture;
using ::testing::HasSubstr;
using testing::PictureOf;
using testing::SamePixels;
using ::testing::StartsWith;

constexpr graphics::Argb kBlue = 0xFF204060;

TEST_F(ProgramTest, InfoTellsTheDocumentInOneLine) {
    const std::string layer =
        R"({"rect":[0,0,64,48],"base_rect":[0,0,64,48],"image":[64,48],"opacity":1,"scale":0,)"
        R"("visible":true,"clip_next":false,"hue":0,"saturation":40,"brightness":50,)"
        R"("contrast":50,"region":null})";
    const std::string told =
        R"({"size":null,"sizes":[],"page":{"width":64,"height":48,"background":"#80FF0000"},"path":"","modified":true,)"
        R"("selected":1,"undo":2,"redo":1,"selection":null,"layers":[)";
    EXPECT_EQ(Run("new 64 48 background '#80ff0000' add-layer opacity 5 30 undo info"),
              (Outcome{0, told + layer + "," + layer + "]}\n", ""}));
}

TEST_F(ProgramTest, RegionListsRunsOfPixelsRowByRow) {
    Write("a.png", PictureOf({"........",  //
                              "..##..##",  //
                              "..##..##",  //
                              ".......#",  //
                              "..##..##"}));
    // A region lies one pixel to the left of the pixels that it is made of.
    EXPECT_EQ(Run("open a.png region 0"),
              (Outcome{0, "1 1 3\n1 5 7\n2 1 3\n2 5 7\n3 6 7\n4 1 3\n4 5 7\n", ""}));
    EXPECT_EQ(Run("new 8 8 region 0 selection"), kSuccess);
    EXPECT_EQ(Run("new 8 8 tool select-rectangle drag 1 2 3 3 selection"),
              (Outcome{0, "2 1 4\n3 1 4\n", ""}));
    EXPECT_THAT(Run("open a.png opacity 30 tool select-rectangle drag 1 2 3 3 info").Output,
                AllOf(HasSubstr(R"("selection":[1,2,3,2])"), HasSubstr(R"("opacity":0.3,)"),
                      HasSubstr(R"("region":[1,1,6,4])")));
}

TEST_F(ProgramTest, LayerPageExportAndScene) {
    Write("a.png", PictureOf({"#.", ".#"}, kBlue));
    EXPECT_EQ(Run("open a.png background '#FFFFFF' write-page page.png export export.png "
                  "write-layer 0 layer.png"),
              kSuccess);
    EXPECT_EQ(Bytes("layer.png"), Bytes("a.png"));
    EXPECT_TRUE(SamePixels(Picture("page.png"), PictureOf({"#.", ".#"}, kBlue)));
    EXPECT_EQ(Picture("export.png").GetPixel(1, 0), 0xFFFFFFFF);

    Write("a.png", FilledPicture(8, 8, kBlue));
    EXPECT_EQ(Run("open a.png write-scene 1.png zoom 2.5 write-scene 2.png"), kSuccess);
    for (const auto& [name, columns] : {std::pair{"1.png", 8}, {"2.png", 20}}) {
        const graphics::Bitmap scene = Picture(name);
        EXPECT_TRUE(scene.Width() == 1024 && scene.Height() == 768);
        EXPECT_EQ(std::count(scene.Row(384), scene.Row(385), kBlue), columns);
    }
    EXPECT_EQ(Picture("1.png").GetPixel(512, 387), kBlue);
}

TEST_F(ProgramTest, IconSettingsHoldForTheIconsAfterThem) {
    Write("a.png", FilledPicture(48, 48, kBlue));
    EXPECT_EQ(Run("open a.png export own.ico icon-sizes 32 16 export two.ico icon-format png "
                  "export png.ico"),
              kSuccess);
    EXPECT_EQ(Bytes("own.ico")[4], 4);  // 48, 32, 24, 16
    const std::vector<std::uint8_t> two = Bytes("two.ico");
    EXPECT_THAT((std::vector{two[4], two[6], two[6 + 16]}), ElementsAre(2, 32, 16));
    EXPECT_EQ(two[6 + 2 * 16], 40);                 // a bitmap's header
    EXPECT_EQ(Bytes("png.ico")[6 + 2 * 16], 0x89);  // a PNG's first byte
    EXPECT_FALSE(Exists("cache/Sizes"));
}

TEST_F(ProgramTest, CombineNeedsNoDocument) {
    Write("a.png", FilledPicture(20, 10, kBlue));
    Write("b.png", FilledPicture(256, 256, kBlue));
    EXPECT_EQ(Run("icon-format png combine o.ico a.png b.png"), kSuccess);
    const std::vector<std::uint8_t> icon = Bytes("o.ico");
    EXPECT_THAT((std::vector{icon[4], icon[6], icon[7], icon[22]}), ElementsAre(2, 20, 10, 0));
    EXPECT_EQ(Run("combine p.ico missing.png a.png"),
              Failed("combine p.ico missing.png a.png: missing.png: No such file or directory"));
}

TEST_F(ProgramTest, BadFilesFailWithAReason) {
    Write("good.png", FilledPicture(20, 20, kBlue));
    ASSERT_EQ(Run("open good.png save good.volf"), kSuccess);
    const std::vector<std::uint8_t> png = Bytes("good.png"), document = Bytes("good.volf");
    std::vector<std::uint8_t> huge = png;
    std::fill(huge.begin() + 16, huge.begin() + 24, 0x7F);  // the sides in its header

    Write("empty.png", std::vector<std::uint8_t>{});
    Write("cut.png", {png.begin(), png.begin() + png.size() / 2});
    Write("huge.png", huge);
    Write("empty.volf", std::vector<std::uint8_t>{});
    Write("cut.volf", {document.begin(), document.begin() + document.size() / 2});
    Write("cursor.ico", std::vector<std::uint8_t>{0, 0, 2, 0, 1, 0});
    for (const std::string name : {"missing.png", "empty.png", "cut.png", "huge.png",
                                   "missing.volf", "empty.volf", "cut.volf", "cursor.ico", "."}) {
        const Outcome outcome = Run("open " + name + " write-page page.png");
        EXPECT_EQ(outcome.Status, 1) << name;
        EXPECT_EQ(outcome.Output, "");
        EXPECT_THAT(outcome.Errors, StartsWith("orbelle-cli: open " + name + ": "));
        EXPECT_EQ(std::ranges::count(outcome.Errors, '\n'), 1) << name;
    }
    EXPECT_FALSE(Exists("page.png"));
    for (const std::string verb : {"save", "export", "write-page", "write-scene", "write-layer 0"})
        EXPECT_EQ(Run("new 16 16 " + verb + " no/a.png"),
                  Failed(verb + " no/a.png: No such file or directory"));
}

TEST_F(ProgramTest, ADamagedDocumentIsToldAndTheRunGoesOn) {
    Write("good.png", FilledPicture(20, 20, kBlue));
    ASSERT_EQ(Run("open good.png import good.png save d.volf"), kSuccess);
    std::vector<std::uint8_t> document = Bytes("d.volf");
    document.pop_back();
    Write("d.volf", document);
    const Outcome outcome = Run("open d.volf write-page page.png");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Errors,
              "orbelle-cli: open d.volf: layer 1: the file is cut short; 1 of 2 layers could be "
              "read\n");
    EXPECT_EQ(Picture("page.png").GetPixel(5, 5), kBlue);
    EXPECT_EQ(Bytes("d.volf"), document);
}

TEST_F(ProgramTest, NothingRunsWhenAnyWordIsWrong) {
    EXPECT_EQ(Run("new 16 16 write-page a.png opacity -5"),
              WrongUsage("opacity -5: V must be from 0 to 100"));
    EXPECT_FALSE(Exists("a.png"));
    EXPECT_EQ(Run("--scirpt a"), WrongUsage("--scirpt: unknown option; did you mean --script?"));
    for (const char* words : {"", "--frobnicate", "--script", "--script a undo", "--script .",
                              "--help frobnicate", "frobnicate --help", "--version undo"})
        EXPECT_EQ(Run(words).Status, 2) << words;
}

TEST_F(ProgramTest, ScriptsComeFromFilesAndStandardInput) {
    const std::string script =
        "# a page\nnew 16 16\nbackground #FF8800 # orange\nexport \"my page.png\"\n";
    EXPECT_EQ(Run("--script -", script), kSuccess);
    EXPECT_EQ(Picture("my page.png").GetPixel(0, 0), 0xFFFF8800);

    Write("a.txt", {script.begin(), script.end()});
    std::filesystem::remove(folder / "my page.png");
    EXPECT_EQ(Run("--script a.txt"), kSuccess);
    EXPECT_TRUE(Exists("my page.png"));

    EXPECT_EQ(Run("--script -", "new 8 8\nsave a.volf\nselect x"),
              WrongUsage("-:3: select x: N must be a whole number"));
    EXPECT_FALSE(Exists("a.volf"));
    EXPECT_EQ(Run("--script -", "open \"no page.png\""),
              Failed("-:1: open \"no page.png\": No such file or directory"));
    const std::string failing = "new 16 16\n\nselect 9\nsave a.volf";
    Write("b.txt", {failing.begin(), failing.end()});
    EXPECT_EQ(Run("--script b.txt"),
              Failed("b.txt:3: select 9: there is no layer 9; the document has 1"));
    EXPECT_FALSE(Exists("a.volf"));
    EXPECT_THAT(Run("--script .").Errors, StartsWith("orbelle-cli: .: "));
    EXPECT_EQ(Run("--script none"), WrongUsage("none: No such file or directory"));
}

TEST_F(ProgramTest, HelpNamesTheVerbsOfEveryTopic) {
    const Outcome help = Run("--help");
    EXPECT_EQ(help.Status, 0);
    for (const std::string verb : {"new", "page", "hue", "order", "tool", "drag", "info"})
        EXPECT_THAT(help.Output, HasSubstr("\n  " + verb + " "));
    EXPECT_THAT(Run("--version").Output, StartsWith("orbelle-cli "));
    EXPECT_EQ(Run("-v"), Run("--version"));
    EXPECT_EQ(Run("-h"), help);

    const Outcome flip{0,
                       "orbelle-cli ... flip horizontal|vertical\n  mirror the selected layer's "
                       "picture\n\nExample:\n  orbelle-cli open arrow.png flip horizontal export "
                       "left.png\n",
                       ""};
    for (const char* words : {"--help flip", "flip --help", "new 8 8 flip vertical -h undo"})
        EXPECT_EQ(Run(words), flip) << words;
}

}  // namespace
}  // namespace orbelle::cli
