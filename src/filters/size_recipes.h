// Recipes for a picture at a small size: starting points for artwork drawn by hand.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "graphics/bitmap.h"

namespace orbelle::filters {

enum class SizeRecipe {
    Plain,        // what the export makes
    Sharper,      // plain, its colours sharpened; the shape stays
    Fill,         // the visible box over the whole square, proportions kept
    FillOutline,  // fill, with an outline
    Outline,      // plain, with an outline
    Snapped,      // the dominant edges on whole pixels
};

inline constexpr std::array kSizeRecipes = {SizeRecipe::Plain,   SizeRecipe::Sharper,
                                            SizeRecipe::Fill,    SizeRecipe::FillOutline,
                                            SizeRecipe::Outline, SizeRecipe::Snapped};

// plain, sharper, fill, fill-outline, outline, snapped.
std::string_view NameOf(SizeRecipe recipe);
std::optional<SizeRecipe> FindSizeRecipe(std::string_view name);

// The picture of size x size that the recipe makes of `master`, which may have any size and
// contents. Transparent where nothing is visible; empty for a size that no bitmap has.
graphics::Bitmap ApplyRecipe(SizeRecipe recipe, const graphics::Bitmap& master, int size);

}  // namespace orbelle::filters
