#include "document/icon_layer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orbelle::document {
namespace {

int Truncate(float value) {
    if (!(std::abs(value) < 1e9F))
        return value > 0 ? 1'000'000'000 : value < 0 ? -1'000'000'000 : 0;
    return static_cast<int>(value);
}

bool IsBlank(std::uint32_t letter) {
    return letter == ' ' || letter == 0xA0;
}

// Control characters, the ends of lines and paragraphs, and those that turn the writing around.
bool IsShown(std::uint32_t letter) {
    const auto within = [letter](std::uint32_t first, std::uint32_t last) {
        return letter >= first && letter <= last;
    };
    return !within(0, 0x1F) && !within(0x7F, 0x9F) && !within(0x200B, 0x200F) &&
           !within(0x2028, 0x202E) && !within(0x2060, 0x206F) && letter != 0xFEFF;
}

struct Letter {
    std::uint32_t Code = 0;
    std::size_t Bytes = 0;  // 0: what stands there is no UTF-8
};

Letter FirstLetter(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t head = byte(0);
    if (head < 0x80)
        return {head, 1};
    const std::size_t count = head < 0xC0 ? 0 : head < 0xE0 ? 2 : head < 0xF0 ? 3 : 4;
    if (count == 0 || head > 0xF4 || text.size() < count)
        return {};
    std::uint32_t code = head & (0x7Fu >> count);
    for (std::size_t i = 1; i < count; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {};
        code = code << 6 | (byte(i) & 0x3Fu);
    }
    constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < kLeast[count] || code > 0x10FFFF || isSurrogate ? Letter{} : Letter{code, count};
}

}  // namespace

std::string CleanLayerName(std::string_view name) {
    std::string clean;
    std::size_t end = 0;  // behind the last letter that is no blank
    while (!name.empty()) {
        const Letter letter = FirstLetter(name);
        const std::size_t bytes = std::max<std::size_t>(letter.Bytes, 1);
        const bool isBlank = IsBlank(letter.Code);
        if (letter.Bytes > 0 && IsShown(letter.Code) && !(isBlank && clean.empty())) {
            if (clean.size() + bytes > kMaxLayerName)
                break;
            clean += name.substr(0, bytes);
            if (!isBlank)
                end = clean.size();
        }
        name.remove_prefix(bytes);
    }
    clean.resize(end);
    return clean;
}

graphics::RectI DrawnArea(const graphics::RectF& rect) {
    return {Truncate(rect.X), Truncate(rect.Y), Truncate(rect.Width), Truncate(rect.Height)};
}

void PlaceAt(IconLayer& layer, const graphics::RectI& area) {
    layer.Rect = {static_cast<float>(area.X), static_cast<float>(area.Y),
                  static_cast<float>(area.Width), static_cast<float>(area.Height)};
    layer.ImageWidth = area.Width;
    layer.ImageHeight = area.Height;
}

void ResetLayerAdjust(IconLayer& layer) {
    layer.Hue = kNeutralHue;
    layer.Contrast = kNeutralContrast;
    layer.Brightness = kNeutralBrightness;
    layer.Saturation = kNeutralSaturation;
}

}  // namespace orbelle::document
