#include "filters/size_recipes.h"

#include <algorithm>

#include "filters/rounding.h"
#include "filters/shrink_to_size.h"
#include "filters/snap_edges.h"
#include "graphics/drawing_context.h"
#include "graphics/geometry.h"
#include "graphics/pixel_mask.h"

namespace orbelle::filters {
namespace {

using namespace graphics;

// Alphas from which pixels count. A soft shadow's end is not part of the visible box; where an
// outline stands at the box's edge, only what is more than half there.
constexpr int kBoxAlpha = 16;
constexpr int kOutlinedBoxAlpha = 128;
// What is covered by a quarter lies within the outline of a plain picture.
constexpr int kOutlinedAlpha = 64;

constexpr double kSharpness = 1.2;
constexpr double kOutlineBrightness = 0.6;

constexpr std::array<std::string_view, kSizeRecipes.size()> kNames = {
    "plain", "sharper", "fill", "fill-outline", "outline", "snapped"};

RectI BoxOf(const Bitmap& picture, int alpha) {
    return picture.IsEmpty() ? RectI{} : PixelMask(picture, alpha, 0, 0).Bounds();
}

// Where a part of the given shape stands in the square: its larger side fills it.
RectI FillingRect(const RectI& part, int size) {
    const double larger = std::max(part.Width, part.Height);
    const int width = std::max(1, RoundToEven(part.Width * size / larger));
    const int height = std::max(1, RoundToEven(part.Height * size / larger));
    return {(size - width) / 2, (size - height) / 2, width, height};
}

enum class Scaling { HighQuality, Snapped };

// The part over the whole square.
Bitmap FillSquare(const Bitmap& master, const RectI& part, int size, Scaling scaling) {
    Bitmap square(size, size);
    if (part.IsEmpty() || square.IsEmpty())
        return square;
    const RectI place = FillingRect(part, size);
    DrawingContext context(square);
    if (scaling == Scaling::Snapped && std::max(part.Width, part.Height) > size) {
        const Bitmap cut = master.CloneArea(part.X, part.Y, part.Width, part.Height);
        context.DrawImage(ShrinkSnapped(cut, place.Width, place.Height),
                          static_cast<float>(place.X), static_cast<float>(place.Y));
    } else {
        context.SetInterpolationMode(InterpolationMode::HighQuality);
        context.DrawImageRectRectI(master, place, part);
    }
    return square;
}

// Each colour goes further away from the mean of its neighbourhood, in which pixels count by their
// alpha and the nearer ones more; as far as it is opaque, for faint pixels have little colour that
// could be trusted. Alpha stays.
Bitmap SharpenColors(const Bitmap& picture) {
    Bitmap sharp = picture;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const Argb own = picture.Row(y)[x];
            if (AlphaOf(own) == 0)
                continue;
            unsigned weights = 0, red = 0, green = 0, blue = 0;
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    const Argb color = picture.GetPixel(x + dx, y + dy).value_or(0);
                    const unsigned weight = AlphaOf(color) * (dx == 0 ? 2 : 1) * (dy == 0 ? 2 : 1);
                    weights += weight;
                    red += weight * RedOf(color);
                    green += weight * GreenOf(color);
                    blue += weight * BlueOf(color);
                }
            }
            const double sharpness = kSharpness * AlphaOf(own) / 255;
            const auto sharpen = [=](unsigned channel, unsigned sum) {
                const double away = channel - static_cast<double>(sum) / weights;
                return RoundToByte(channel + sharpness * away);
            };
            sharp.SetPixel(x, y,
                           MakeArgb(AlphaOf(own), sharpen(RedOf(own), red),
                                    sharpen(GreenOf(own), green), sharpen(BlueOf(own), blue)));
        }
    }
    return sharp;
}

// The outermost pixels of the shape that has at least the given alpha, those at the picture's edge
// among them, become opaque and darker.
Bitmap DrawOutline(const Bitmap& picture, int alpha) {
    const auto isInside = [&](int x, int y) {
        return static_cast<int>(AlphaOf(picture.GetPixel(x, y).value_or(0))) >= alpha;
    };
    const auto darken = [](unsigned channel) { return RoundToByte(channel * kOutlineBrightness); };
    Bitmap outlined = picture;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            if (!isInside(x, y) || (isInside(x - 1, y) && isInside(x + 1, y) &&
                                    isInside(x, y - 1) && isInside(x, y + 1)))
                continue;
            const Argb own = picture.Row(y)[x];
            outlined.SetPixel(
                x, y, MakeArgb(255, darken(RedOf(own)), darken(GreenOf(own)), darken(BlueOf(own))));
        }
    }
    return outlined;
}

// As ShrinkToSize places it.
Bitmap SnapToSize(const Bitmap& master, int size) {
    if (std::max(master.Width(), master.Height()) <= size)
        return ShrinkToSize(master, size);
    return FillSquare(master, {0, 0, master.Width(), master.Height()}, size, Scaling::Snapped);
}

}  // namespace

std::string_view NameOf(SizeRecipe recipe) {
    return kNames[static_cast<std::size_t>(recipe)];
}

std::optional<SizeRecipe> FindSizeRecipe(std::string_view name) {
    const auto* found = std::ranges::find(kNames, name);
    if (found == kNames.end())
        return std::nullopt;
    return kSizeRecipes[static_cast<std::size_t>(found - kNames.begin())];
}

Bitmap ApplyRecipe(SizeRecipe recipe, const Bitmap& master, int size) {
    switch (recipe) {
        case SizeRecipe::Plain:
            return ShrinkToSize(master, size);
        case SizeRecipe::Sharper:
            return SharpenColors(ShrinkToSize(master, size));
        case SizeRecipe::Fill:
            return FillSquare(master, BoxOf(master, kBoxAlpha), size, Scaling::Snapped);
        case SizeRecipe::FillOutline:
            return DrawOutline(
                FillSquare(master, BoxOf(master, kOutlinedBoxAlpha), size, Scaling::HighQuality),
                kOutlinedBoxAlpha);
        case SizeRecipe::Outline:
            return DrawOutline(ShrinkToSize(master, size), kOutlinedAlpha);
        case SizeRecipe::Snapped:
            return SnapToSize(master, size);
    }
    return {};
}

}  // namespace orbelle::filters
