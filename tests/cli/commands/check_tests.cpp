// What is wrong with an icon: pictures with one fault, and their neighbours that just have not.
#include "rows.h"

namespace orbelle::cli {
namespace {

using graphics::Argb;
using testing::FilledPicture;

// Both grounds are far from it: 4.6 on white, 3.5 on #202020.
constexpr Argb kGood = 0xFFC04040;

class CheckVerb : public RowsTest {
protected:
    CheckVerb() { Write("good.png", FilledPicture(32, 32, kGood)); }

    // The findings with "; " between them.
    static std::string Told(const std::string& script) {
        std::ostringstream output;
        Workspace workspace(output);
        EXPECT_EQ(RunScript(workspace, script + " check"), "") << script;
        std::string text;
        for (const std::string& line : Split(output.str(), "\n"))
            text += line.empty() ? "" : (text.empty() ? "" : "; ") + line;
        return text;
    }
    // A page of 32 filled with it, at the size 32 alone.
    static std::string ToldOf(Argb color) {
        Write("a.png", FilledPicture(32, 32, color));
        return Told("open a.png icon-sizes 32");
    }
};

TEST_F(CheckVerb, AGoodIconHasNoFindings) {
    EXPECT_EQ(Told("open good.png"), "");
    EXPECT_EQ(Told("open good.png size 16 size 24 fill"), "");
    EXPECT_EQ(Told("new 8 8"), "") << "too small for any size";
    std::ostringstream output;
    Workspace workspace(output);
    EXPECT_EQ(RunScript(workspace, "check"), "check: there is no document");
}

TEST_F(CheckVerb, Contrast) {
    const std::string onWhite = R"({"size":32,"kind":"contrast","ground":"#FFFFFF","value":)";
    const std::string onDark = R"({"size":32,"kind":"contrast","ground":"#202020","value":)";
    // 1.05 / (L + 0.05) with L of #949494 0.2961, of #959595 0.3005 and of #969696 0.3050.
    EXPECT_EQ(ToldOf(0xFF949494), "");
    EXPECT_EQ(ToldOf(0xFF959595), onWhite + "3.00}") << "and still below";
    EXPECT_EQ(ToldOf(0xFF969696), onWhite + "2.96}");
    EXPECT_EQ(ToldOf(0xFFFFFFFF), onWhite + "1.00}");
    // Yellow has 0.2126 + 0.7152: 1.05 / 0.9778.
    EXPECT_EQ(ToldOf(0xFFFFFF00), onWhite + "1.07}");
    // #202020 has 0.0144: 0.0644 / 0.05.
    EXPECT_EQ(ToldOf(0xFF000000), onDark + "1.29}");
    EXPECT_EQ(ToldOf(0x7FFFFFFF), "") << "no outline";
}

TEST_F(CheckVerb, AnEmptySizeHasNothingElse) {
    const std::string empty = R"({"size":16,"kind":"empty"})";
    EXPECT_EQ(Told("new 16 16"), empty);
    Write("least.png", FilledPicture(16, 16, 0x01FFFFFF));
    EXPECT_EQ(Told("open least.png"), "") << "alpha 1 is visible, and no outline";
    EXPECT_EQ(Told("open good.png size 16 key delete"), empty);
    // A layer that lies beside the page of 16: clipped as well.
    EXPECT_EQ(Told("open good.png size 16 tool move drag 8 8 40 8"), empty);
    EXPECT_EQ(Told("open good.png icon-sizes 32 size 16 tool move drag 8 8 40 8"),
              R"({"size":16,"kind":"clipped"})");
}

TEST_F(CheckVerb, ClippedPagesAreToldByTheirOwnSize) {
    EXPECT_EQ(Told("open good.png tool move drag 8 8 9 8"), R"({"size":32,"kind":"clipped"})");
    EXPECT_EQ(Told("open good.png icon-sizes 16 tool move drag 8 8 9 8"),
              R"({"size":32,"kind":"clipped"})");
    EXPECT_EQ(Told("open good.png tool move drag 8 8 9 8 toggle-visible icon-sizes 64"),
              R"({"size":64,"kind":"empty"})");
    EXPECT_EQ(Told("open good.png size 16 tool move drag 8 8 8 7 size master "
                   "tool move drag 8 8 8 7"),
              R"({"size":16,"kind":"clipped"}; {"size":32,"kind":"clipped"})");
}

TEST_F(CheckVerb, SizesRiseAndKindsKeepTheirOrder) {
    Write("white.png", FilledPicture(20, 32, 0xFFFFFFFF));
    const std::string contrast = R"(,"kind":"contrast","ground":"#FFFFFF","value":1.00})";
    EXPECT_EQ(Told("open white.png icon-sizes 33 16 32 16 33"),
              R"({"size":16)" + contrast + R"(; {"size":32)" + contrast + R"(; {"size":33)" +
                  contrast + R"(; {"size":33,"kind":"upscaled"})");
    EXPECT_EQ(Told("open white.png size 33 icon-sizes 33"), R"({"size":33)" + contrast)
        << "artwork of its own is not scaled up";
    // Black corner pixels of alpha 1 beside white: every one of them is foreign.
    graphics::Bitmap fringe = FilledPicture(32, 32, 0xFFFFFFFF);
    for (int x = 0; x < 32; ++x)
        fringe.SetPixel(x, 0, 0x01000000);
    Write("fringe.png", fringe);
    EXPECT_EQ(Told("open fringe.png icon-sizes 32 tool move drag 8 8 7 8"),
              R"({"size":32)" + contrast +
                  R"(; {"size":32,"kind":"fringe"}; {"size":32,"kind":"clipped"})");
}

// Master 32: what is larger is scaled up, each size once; a picture in whose middle the icon stands
// smaller is none of its sizes.
TEST_F(CheckVerb, SizesOfSetsThatWereExportedAreLookedAt) {
    const auto upscaled = [](std::initializer_list<int> sizes) {
        std::string text;
        for (const int size : sizes)
            text += (text.empty() ? "" : "; ") + (R"({"size":)" + std::to_string(size)) +
                    R"(,"kind":"upscaled"})";
        return text;
    };
    const std::string open = "open good.png icon-sizes 32 export-set sets ";
    EXPECT_EQ(Told(open + "ios"), upscaled({1024}));
    EXPECT_EQ(Told(open + "macos"), upscaled({64, 128, 256, 512, 1024}));
    EXPECT_EQ(Told(open + "android"), upscaled({48, 72, 96, 144, 192}));
    EXPECT_EQ(Told(open + "web export-set sets ios"), upscaled({48, 180, 192, 512, 1024}));
    EXPECT_EQ(Told("open good.png icon-sizes 32 size 48 export-set sets web size master"),
              upscaled({180, 192, 512}));
}

}  // namespace
}  // namespace orbelle::cli
