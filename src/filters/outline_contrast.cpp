#include "filters/outline_contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace orbelle::filters {
namespace {

using graphics::Argb;
using graphics::Bitmap;

constexpr unsigned kSolidAlpha = 128;

// The light that a channel of sRGB gives, 0 to 1, by its value.
std::array<double, 256> MakeLightTable() {
    std::array<double, 256> light{};
    for (std::size_t i = 0; i < light.size(); ++i) {
        const double value = static_cast<double>(i) / 255;
        light[i] = value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return light;
}

double Luminance(Argb color) {
    static const std::array<double, 256> light = MakeLightTable();
    return 0.2126 * light[graphics::RedOf(color)] + 0.7152 * light[graphics::GreenOf(color)] +
           0.0722 * light[graphics::BlueOf(color)];
}

std::vector<Argb> OutlineOf(const Bitmap& picture) {
    const auto width = static_cast<std::size_t>(picture.Width());
    const auto height = static_cast<std::size_t>(picture.Height());
    // With a border that is outside.
    const std::size_t stride = width + 2;
    std::vector<unsigned char> isSolid(stride * (height + 2));
    for (std::size_t y = 0; y < height; ++y)
        std::transform(picture.Row(static_cast<int>(y)), picture.Row(static_cast<int>(y)) + width,
                       &isSolid[(y + 1) * stride + 1],
                       [](Argb color) { return graphics::AlphaOf(color) >= kSolidAlpha; });
    std::vector<Argb> outline;
    for (std::size_t y = 0; y < height; ++y) {
        const unsigned char* here = &isSolid[(y + 1) * stride + 1];
        for (std::size_t x = 0; x < width; ++x, ++here) {
            const bool isInside = here[-1] && here[1] && *(here - stride) && here[stride];
            if (*here && !isInside)
                outline.push_back(picture.Row(static_cast<int>(y))[x]);
        }
    }
    return outline;
}

}  // namespace

double ContrastRatio(Argb first, Argb second) {
    constexpr double kStrayLight = 0.05;
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + kStrayLight) / (darker + kStrayLight);
}

std::optional<double> OutlineContrast(const Bitmap& picture, Argb ground) {
    std::vector<double> ratios;
    for (const Argb color : OutlineOf(picture))
        ratios.push_back(ContrastRatio(color, ground));
    if (ratios.empty())
        return std::nullopt;
    const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
    std::ranges::nth_element(ratios, middle);
    if (ratios.size() % 2 == 1)
        return *middle;
    return (*std::max_element(ratios.begin(), middle) + *middle) / 2;
}

}  // namespace orbelle::filters
