#include <chrono>
#include <string>

#include "graphics/codecs/image_codecs.h"
#include "graphics/decoding.h"
#include "graphics/file_io.h"
#include "support/temporary_folder.h"

namespace orbelle::graphics {
namespace {

FileBytes BytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string Svg(const std::string& attributes, const std::string& contents) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + attributes + ">" + contents + "</svg>";
}

Bitmap Drawn(const std::string& document, int side = kDefaultSvgSide) {
    PixelBudget budget;
    const FileBytes file = BytesOf(document);
    return DecodeImage(MemorySource(file), budget, side);
}

TEST(SvgDecoder, DrawsAtTheSizeThatIsAskedFor) {
    const std::string shapes =
        "<rect width='32' height='32' fill='#ff8000'/>"
        "<rect x='32' width='16' height='32' fill='#ff8000' fill-opacity='0.5'/>";
    const struct {
        const char* What;
        std::string Attributes;
        int Side;
        int Width;
        int Height;
    } kCases[] = {
        {"not said", "width='64' height='32'", kDefaultSvgSide, 512, 256},
        {"its own", "width='64' height='32'", 64, 64, 32},
        {"smaller", "width='64' height='32'", 8, 8, 4},
        {"the largest", "width='64' height='32'", 1024, 1024, 512},
        {"one", "width='64' height='32'", 1, 1, 1},
        {"upright", "width='32' height='64'", 16, 8, 16},
        {"by its box", "viewBox='0 0 64 32'", 64, 64, 32},
        {"in inches", "width='2in' height='1in' viewBox='0 0 64 32'", 96, 96, 48},
        {"by its shapes", "", 48, 48, 32},
        {"ties to even", "width='128' height='20'", 16, 16, 2},
    };
    for (const auto& [what, attributes, side, width, height] : kCases) {
        const Bitmap drawn = Drawn(Svg(attributes, shapes), side);
        EXPECT_EQ(drawn.Width(), width) << what;
        EXPECT_EQ(drawn.Height(), height) << what;
    }
    const Bitmap drawn = Drawn(Svg("width='64' height='32'", shapes), 128);
    EXPECT_EQ(drawn.GetPixel(0, 0), 0xFFFF8000);
    EXPECT_EQ(drawn.GetPixel(63, 63), 0xFFFF8000);
    EXPECT_EQ(drawn.GetPixel(64, 0), 0x80FF8000);  // no darker where it is half there
    EXPECT_EQ(drawn.GetPixel(95, 63), 0x80FF8000);
    EXPECT_EQ(drawn.GetPixel(96, 0), 0u);
}

// The edge of a shape has the shape's colour.
TEST(SvgDecoder, LeavesNoFringes) {
    const Bitmap drawn =
        Drawn(Svg("width='9' height='9'", "<circle cx='4.5' cy='4.5' r='4' fill='#fff'/>"), 65);
    int edge = 0;
    for (const Argb pixel : PixelsOf(drawn)) {
        const Argb alpha = pixel >> 24;
        edge += alpha > 0 && alpha < 255 ? 1 : 0;
        EXPECT_EQ(pixel & 0xFFFFFF, alpha > 0 ? 0xFFFFFFu : 0u);
    }
    EXPECT_GT(edge, 50);
}

TEST(SvgDecoder, IsToldByTheFirstElement) {
    const std::string svg = Svg("width='1' height='1'", "");
    const std::string type =
        "<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" "
        "\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">";
    for (const std::string& start :
         {std::string(), std::string("\xEF\xBB\xBF"), std::string(" \r\n\t"),
          std::string("<?xml version=\"1.0\"?>\n"), std::string("<!-- <svg> -->\n<!-- b -->"), type,
          std::string("<?xml version=\"1.0\"?>\n") + type + "<!-- c -->",
          std::string("<!DOCTYPE svg [<!ENTITY a \"b>\">]>")}) {
        EXPECT_TRUE(IsPicture(MemorySource(BytesOf(start + svg)))) << start;
        EXPECT_EQ(Drawn(start + svg, 4).Width(), 4) << start;
    }
    for (const std::string& other :
         {std::string("svg"), std::string("<svgs>"), std::string("<html><svg/></html>"),
          std::string("<!-- <svg/>"), std::string("<?xml"), std::string("<!DOCTYPE svg ["),
          std::string(4096, ' ') + svg})
        EXPECT_EQ(ProblemOf(BytesOf(other)), "not a PNG, JPEG, GIF, BMP, WebP or SVG picture")
            << other;
}

TEST(SvgDecoder, ReadsNothingOutsideOfTheDocument) {
    const testing::TemporaryFolder folder;
    const std::filesystem::path beside = folder.Path() / "other.png";
    WriteFile(beside, EncodePng(testing::FilledPicture(8, 8, 0xFFFF0000)));
    WriteFile(
        folder.Path() / "other.svg",
        BytesOf(Svg("width='8' height='8'", "<rect id='r' width='8' height='8' fill='red'/>")));
    for (const std::string& address :
         {std::string("other.png"), beside.string(), "file://" + beside.string(),
          std::string("http://127.0.0.1:9/other.png"), std::string("file:///dev/zero")}) {
        const std::filesystem::path path = folder.Path() / "drawing.svg";
        WriteFile(path,
                  BytesOf(Svg("width='8' height='8' xmlns:xlink='http://www.w3.org/1999/xlink'",
                              "<image width='8' height='8' href='" + address + "'/>" +
                                  "<image width='8' height='8' xlink:href='" + address + "'/>" +
                                  "<use href='other.svg#r'/>")));
        EXPECT_EQ(PixelsOf(LoadImageFromFile(path, {}, 8)), std::vector<Argb>(64, 0)) << address;
    }
    const std::string entity = "<!DOCTYPE svg [<!ENTITY a SYSTEM \"file://" +
                               (folder.Path() / "other.svg").string() + "\">]>";
    WriteFile(folder.Path() / "entity.svg", BytesOf(entity + Svg("width='8' height='8'", "&a;")));
    try {
        EXPECT_EQ(PixelsOf(LoadImageFromFile(folder.Path() / "entity.svg", {}, 8)),
                  std::vector<Argb>(64, 0));
    } catch (const FileError&) {
    }
}

// Each copy of ten that are copied ten times each, and so on.
std::string Copies() {
    std::string shapes = "<g id='g0'><rect width='512' height='512' fill='red' opacity='.5'/></g>";
    for (int i = 1; i < 20; ++i) {
        shapes += "<g opacity='.9' id='g" + std::to_string(i) + "'>";
        for (int j = 0; j < 10; ++j)
            shapes += "<use href='#g" + std::to_string(i - 1) + "'/>";
        shapes += "</g>";
    }
    return Svg("width='512' height='512'", "<defs>" + shapes + "</defs><use href='#g19'/>");
}

TEST(SvgDecoder, EndsWhateverTheDocumentAsksFor) {
    std::string laughs = "<!DOCTYPE svg [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\">";
    for (char name = 'b'; name < 'l'; ++name) {
        laughs += std::string("<!ENTITY ") + name + " \"";
        for (int i = 0; i < 10; ++i)
            laughs += std::string("&") + static_cast<char>(name - 1) + ";";
        laughs += "\">";
    }
    std::string order = "1";
    for (int i = 1; i < 10000; ++i)
        order += " 1";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ProblemOf(BytesOf(Copies())), "the SVG drawing takes too long");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
    EXPECT_NE(ProblemOf(BytesOf(laughs + "]>" + Svg("width='9' height='9'", "<text>&k;</text>"))),
              "");
    // The library ends its process here.
    EXPECT_EQ(ProblemOf(BytesOf(Svg("width='512' height='512'",
                                    "<filter id='f'><feImage href='#f'/><feConvolveMatrix "
                                    "order='100' kernelMatrix='" +
                                        order +
                                        "'/></filter><rect width='512' height='512' "
                                        "filter='url(#f)'/>"))),
              "the SVG drawing takes too much memory, or is damaged");
    EXPECT_NE(ProblemOf(BytesOf(std::string(9 << 20, ' ').insert(0, "<svg "))), "");
}

TEST(SvgDecoder, SaysWhatIsWrong) {
    EXPECT_THAT(ProblemOf(BytesOf("<svg ")),
                ::testing::StartsWith("the SVG picture is cut short or damaged: "));
    EXPECT_EQ(ProblemOf(BytesOf(Svg("", ""))),
              "the SVG picture is cut short or damaged: it has no size");
    for (const char* size : {"width='0' height='0'", "width='-5' height='9'", "viewBox='0 0 0 0'"})
        EXPECT_NE(ProblemOf(BytesOf(Svg(size, ""))), "") << size;
}

TEST(SvgDecoder, TellsTheDocumentsOwnSize) {
    const auto size = [](const std::string& attributes) {
        const FileBytes file = BytesOf(Svg(attributes, ""));
        const SvgSize own = SizeOfSvg(MemorySource(file));
        return std::pair(own.Width, own.Height);
    };
    EXPECT_EQ(size("width='48' height='24'"), std::pair(48, 24));
    EXPECT_EQ(size("viewBox='0 0 24 24'"), std::pair(24, 24));
    EXPECT_EQ(size("width='1in' height='0.5in'"), std::pair(96, 48));
}

}  // namespace
}  // namespace orbelle::graphics
