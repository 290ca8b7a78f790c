#include "graphics/codecs/pixel_budget.h"

#include <algorithm>
#include <string>

#include "graphics/errors.h"

namespace orbelle::graphics {

void CheckDeclaredSize(std::int64_t width, std::int64_t height) {
    if (IsBitmapSizeAllowed(width, height))
        return;
    const std::string size = std::to_string(width) + " x " + std::to_string(height);
    if (width < 1 || height < 1)
        throw ImageError("the picture claims a size of " + size + " pixels");
    throw ImageError("the picture claims " + size + " pixels, more than " +
                     std::to_string(kMaxBitmapSide) + " a side or " +
                     std::to_string(kMaxBitmapPixels) + " in all");
}

void PixelBudget::Take(std::int64_t width, std::int64_t height) {
    CheckDeclaredSize(width, height);
    if (width * height > Left)
        throw ImageError("the picture of " + std::to_string(width) + " x " +
                         std::to_string(height) + " pixels is too large: there is room for " +
                         std::to_string(std::max<std::int64_t>(Left, 0)) + " pixels");
    Left -= width * height;
}

}  // namespace orbelle::graphics
