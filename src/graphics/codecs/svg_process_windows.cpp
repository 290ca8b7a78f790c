#include "graphics/codecs/svg_process.h"
#include "graphics/errors.h"

namespace orbelle::graphics {

DrawnSvg DrawSvgElsewhere(std::span<const std::uint8_t>, int) {
    throw ImageError("SVG drawings can't be read on Windows");
}

}  // namespace orbelle::graphics
