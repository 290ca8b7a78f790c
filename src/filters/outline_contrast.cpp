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

struct Place {
    int X = 0;
    int Y = 0;
};

std::vector<Place> OutlineOf(const Bitmap& picture) {
    const auto width = static_cast<std::size_t>(picture.Width());
    const auto height = static_cast<std::size_t>(picture.Height());
    // With a border that is outside.
    const std::size_t stride = width + 2;
    std::vector<unsigned char> isSolid(stride * (height + 2));
    for (std::size_t y = 0; y < height; ++y)
        std::transform(picture.Row(static_cast<int>(y)), picture.Row(static_cast<int>(y)) + width,
                       &isSolid[(y + 1) * stride + 1],
                       [](Argb color) { return graphics::AlphaOf(color) >= kSolidAlpha; });
    std::vector<Place> outline;
    for (std::size_t y = 0; y < height; ++y) {
        const unsigned char* here = &isSolid[(y + 1) * stride + 1];
        for (std::size_t x = 0; x < width; ++x, ++here) {
            const bool isInside = here[-1] && here[1] && *(here - stride) && here[stride];
            if (*here && !isInside)
                outline.push_back({static_cast<int>(x), static_cast<int>(y)});
        }
    }
    return outline;
}

// The highest of the solid pixels that are at most `reach` away, itself among them.
double BestRatio(const Bitmap& picture, Place place, int reach, Argb ground) {
    const int left = std::max(place.X - reach, 0);
    const int right = std::min(place.X + reach, picture.Width() - 1);
    const int bottom = std::min(place.Y + reach, picture.Height() - 1);
    double best = 0;
    for (int y = std::max(place.Y - reach, 0); y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const Argb color = picture.Row(y)[x];
            if (graphics::AlphaOf(color) >= kSolidAlpha)
                best = std::max(best, ContrastRatio(color, ground));
        }
    }
    return best;
}

std::optional<double> MedianOnOutline(const Bitmap& picture, int reach, Argb ground) {
    std::vector<double> ratios;
    for (const Place place : OutlineOf(picture))
        ratios.push_back(BestRatio(picture, place, reach, ground));
    if (ratios.empty())
        return std::nullopt;
    const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
    std::ranges::nth_element(ratios, middle);
    if (ratios.size() % 2 == 1)
        return *middle;
    return (*std::max_element(ratios.begin(), middle) + *middle) / 2;
}

}  // namespace

double ContrastRatio(Argb first, Argb second) {
    constexpr double kStrayLight = 0.05;
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + kStrayLight) / (darker + kStrayLight);
}

std::optional<double> OutlineContrast(const Bitmap& picture, Argb ground) {
    return MedianOnOutline(picture, 0, ground);
}

std::optional<double> RimContrast(const Bitmap& picture, Argb ground) {
    return MedianOnOutline(picture, kRimWidth, ground);
}

}  // namespace orbelle::filters
