// Image attributes made ready for many pixels.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "graphics/channel_table.h"
#include "graphics/color.h"
#include "graphics/detail/blend.h"
#include "graphics/image_attributes.h"

namespace orbelle::graphics {

// The cells of a colour matrix that count: rows for red, green, blue, alpha and what is added to
// them (in units of a channel), columns for the new red, green, blue and alpha.
using MatrixCells = std::array<std::array<double, 4>, 5>;

class Recoloring {
public:
    explicit Recoloring(const ImageAttributes& attributes);

    bool ChangesNothing() const { return !factor_ && !cells_ && !gamma_; }

    // The factor of the alphas, when nothing else changes.
    const std::optional<AlphaFactor>& Factor() const { return factor_; }

    void Apply(std::span<Argb> pixels) const;

private:
    std::optional<AlphaFactor> factor_;
    std::optional<MatrixCells> cells_;
    std::optional<ChannelTable> gamma_;
};

}  // namespace orbelle::graphics
