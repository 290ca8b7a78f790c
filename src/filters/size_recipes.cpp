#include "filters/size_recipes.h"

#include <algorithm>

#include "filters/shrink_to_size.h"
#include "graphics/drawing_context.h"
#include "graphics/pixel_mask.h"

namespace orbelle::filters {
namespace {

using namespace graphics;

// Fainter pixels, those of a soft shadow's end, don't belong to the visible box.
constexpr int kBoxAlpha = 16;

RectI VisibleBox(const Bitmap& picture) {
    return picture.IsEmpty() ? RectI{} : PixelMask(picture, kBoxAlpha, 0, 0).Bounds();
}

// The visible box over the whole square.
Bitmap FillSquare(const Bitmap& master, int size) {
    const RectI box = VisibleBox(master);
    if (box.IsEmpty())
        return ShrinkToSize(master, size);
    const int larger = std::max(box.Width, box.Height);
    const auto scaled = [&](int side) {
        return std::max(1, RoundToEven(static_cast<double>(side) * size / larger));
    };
    const int width = scaled(box.Width);
    const int height = scaled(box.Height);
    Bitmap square(size, size);
    DrawingContext context(square);
    context.SetInterpolationMode(InterpolationMode::HighQuality);
    context.DrawImageRectRectI(master, {(size - width) / 2, (size - height) / 2, width, height},
                               box);
    return square;
}

constexpr std::array<std::string_view, kSizeRecipes.size()> kNames = {
    "plain", "sharper", "fill", "fill-outline", "outline", "snapped"};

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
        case SizeRecipe::Fill:
        case SizeRecipe::FillOutline:
            return FillSquare(master, size);
        case SizeRecipe::Plain:
        case SizeRecipe::Sharper:
        case SizeRecipe::Outline:
        case SizeRecipe::Snapped:
            break;
    }
    return ShrinkToSize(master, size);
}

}  // namespace orbelle::filters
