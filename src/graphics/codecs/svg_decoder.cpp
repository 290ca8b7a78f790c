#include <algorithm>
#include <string>
#include <string_view>

#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/image_files.h"
#include "graphics/codecs/inflate.h"
#include "graphics/codecs/svg_process.h"
#include "graphics/color.h"

namespace orbelle::graphics {
namespace {

constexpr std::size_t kMaxDocumentBytes = std::size_t{8} << 20;
// Where the first element has to begin.
constexpr std::size_t kStartBytes = std::size_t{4} << 10;

bool IsPacked(const ByteSource& file) {
    return file.NumberAt<std::uint16_t>(0) == 0x8B1F;
}

void SkipSpace(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

// Takes off what begins and ends so; false when it does not begin so.
bool Skip(std::string_view& text, std::string_view begin, std::string_view end) {
    if (!text.starts_with(begin))
        return false;
    const std::size_t at = text.find(end, begin.size());
    text.remove_prefix(at == std::string_view::npos ? text.size() : at + end.size());
    return true;
}

// A document type may hold declarations of its own, in brackets.
bool SkipDocumentType(std::string_view& text) {
    if (!text.starts_with("<!DOCTYPE"))
        return false;
    const std::size_t end = text.find_first_of("[>");
    if (end != std::string_view::npos && text[end] == '[')
        return Skip(text, "<!DOCTYPE", "]") && (SkipSpace(text), Skip(text, ">", ""));
    return Skip(text, "<!DOCTYPE", ">");
}

bool BeginsWithSvg(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    do {
        SkipSpace(text);
    } while (Skip(text, "<?", "?>") || Skip(text, "<!--", "-->") || SkipDocumentType(text));
    for (const std::string_view name : {"<svg", "<svg:svg"}) {
        if (text.starts_with(name) && text.size() > name.size() &&
            std::string_view(" \t\r\n/>").find(text[name.size()]) != std::string_view::npos)
            return true;
    }
    return false;
}

std::vector<std::uint8_t> DocumentIn(const ByteSource& file) {
    const auto require = [](bool isSmall) {
        if (!isSmall)
            throw ImageError("the SVG drawing is too large: more than " +
                             std::to_string(kMaxDocumentBytes >> 20) + " MiB, or damaged");
    };
    if (IsPacked(file)) {
        auto document = Inflate(file, kMaxDocumentBytes);
        require(document.has_value());
        return *std::move(document);
    }
    require(file.Size() <= kMaxDocumentBytes);
    std::vector<std::uint8_t> document(file.Size());
    document.resize(file.ReadAt(0, document));
    return document;
}

// To the nearest.
unsigned Straight(unsigned channel, unsigned alpha) {
    return std::min((channel * 255 + alpha / 2) / alpha, 255u);
}

Argb Straight(Argb premultiplied) {
    const unsigned alpha = AlphaOf(premultiplied);
    if (alpha == 0)
        return 0;
    return MakeArgb(alpha, Straight(RedOf(premultiplied), alpha),
                    Straight(GreenOf(premultiplied), alpha),
                    Straight(BlueOf(premultiplied), alpha));
}

}  // namespace

bool IsSvg(const ByteSource& file) {
    std::vector<std::uint8_t> start(kStartBytes);
    if (IsPacked(file))
        start = InflateStart(file, kStartBytes);
    else
        start.resize(file.ReadAt(0, start));
    return BeginsWithSvg({reinterpret_cast<const char*>(start.data()), start.size()});
}

Bitmap DecodeSvg(const ByteSource& file, PixelBudget& budget, int side) {
    const std::vector<std::uint8_t> document = DocumentIn(file);
    const DrawnSvg drawn = DrawSvgElsewhere(document, side);
    budget.Take(drawn.Reply.Width, drawn.Reply.Height);
    Bitmap image(drawn.Reply.Width, drawn.Reply.Height);
    std::ranges::transform(drawn.Pixels, image.MutablePixels(),
                           [](Argb pixel) { return Straight(pixel); });
    return image;
}

SvgSize SizeOfSvg(const ByteSource& file) {
    const SvgReply reply = DrawSvgElsewhere(DocumentIn(file), 0).Reply;
    return {reply.OwnWidth, reply.OwnHeight};
}

}  // namespace orbelle::graphics
