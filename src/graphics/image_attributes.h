// Colour changes made while a picture is drawn.
#pragma once

#include <array>
#include <optional>

namespace orbelle::graphics {

// Rows and columns stand for red, green, blue, alpha and one: a channel's new value is the sum over
// the rows of (old channel x cell in the channel's column), plus 255 x the last row.
using ColorMatrix = std::array<std::array<float, 5>, 5>;

// The identity with the opacity (0 to 1) in the cell of alpha.
ColorMatrix OpacityMatrix(float opacity);

// Works on straight colours before any resampling, the matrix first. Results are rounded by
// floor(v + 0.5) and limited to 0..255; a colour never changes because of its alpha.
struct ImageAttributes {
    std::optional<ColorMatrix> Matrix = {};
    std::optional<float> Gamma = {};  // red, green and blue, on a scale of 0 to 1, to this power
};

}  // namespace orbelle::graphics
