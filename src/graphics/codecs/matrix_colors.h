// Colours by curves and primary colours, as nearly all profiles of screens and cameras state them.
// The library takes longer to prepare for such a profile than a picture of icon size takes to read.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "graphics/bitmap.h"

namespace orbelle::graphics {

class MatrixColors {
public:
    // Of an opened profile of the library; nothing when it is of another kind.
    static std::optional<MatrixColors> Of(void* profile);

    // To sRGB, to the nearest; colours beyond are cut off channel by channel. Alpha stays.
    void Convert(Argb* pixels, std::int64_t count) const;

private:
    std::array<std::array<float, 256>, 3> light_{};  // of each sample, red first
    std::array<std::array<float, 3>, 3> matrix_{};   // to the light of sRGB
};

}  // namespace orbelle::graphics
