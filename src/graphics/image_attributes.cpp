#include "graphics/image_attributes.h"

namespace orbelle::graphics {

ColorMatrix OpacityMatrix(float opacity) {
    ColorMatrix matrix{};
    for (std::size_t i = 0; i < matrix.size(); ++i)
        matrix[i][i] = 1;
    matrix[3][3] = opacity;
    return matrix;
}

}  // namespace orbelle::graphics
