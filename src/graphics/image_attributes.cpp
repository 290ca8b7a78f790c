#include "graphics/image_attributes.h"

#include <algorithm>

#include "graphics/geometry.h"

namespace orbelle::graphics {

ColorMatrix OpacityMatrix(float opacity) {
    ColorMatrix matrix{};
    for (std::size_t i = 0; i < matrix.size(); ++i)
        matrix[i][i] = 1;
    matrix[3][3] = opacity;
    return matrix;
}

Argb ImageAttributes::Apply(Argb color) const {
    if (!Matrix)
        return color;
    const std::array<unsigned, 5> old = {RedOf(color), GreenOf(color), BlueOf(color),
                                         AlphaOf(color), 255};
    const auto channel = [&](std::size_t column) {
        double sum = 0;
        for (std::size_t row = 0; row < old.size(); ++row)
            sum += old[row] * static_cast<double>((*Matrix)[row][column]);
        return static_cast<unsigned>(std::clamp(RoundHalfUp(sum), 0, 255));
    };
    return MakeARGB(channel(3), channel(0), channel(1), channel(2));
}

}  // namespace orbelle::graphics
