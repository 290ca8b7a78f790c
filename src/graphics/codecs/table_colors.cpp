#include "graphics/codecs/table_colors.h"

#include <lcms2.h>

#include <utility>

namespace orbelle::graphics {
namespace {

constexpr int kPlaceBits = 16;

// Neighbours among the colours are far apart among the places.
std::size_t PlaceOf(Argb pixel) {
    return pixel * 2654435769u >> (32 - kPlaceBits);
}

}  // namespace

// Every place begins with black's, which is right of black and taken for nothing else.
TableColors::TableColors(std::shared_ptr<void> transform, bool isSlow)
    : transform_(std::move(transform)) {
    if (isSlow)
        known_.assign(std::size_t{1} << kPlaceBits, Known{0, Transformed(0)});
}

void TableColors::Convert(Argb* pixels, std::int64_t count, bool isPaper) {
    if (known_.empty())
        cmsDoTransform(transform_.get(), pixels, pixels, static_cast<cmsUInt32Number>(count));
    const Argb counts = isPaper ? 0xFFFFFFFF : 0x00FFFFFF;
    for (std::int64_t i = 0; i < count && !known_.empty(); ++i) {
        const Argb from = pixels[i] & counts;
        Known& known = known_[PlaceOf(from)];
        if (known.From != from)
            known = {from, Transformed(from)};
        pixels[i] = known.To | (pixels[i] & 0xFF000000);
    }
    for (std::int64_t i = 0; i < count && isPaper; ++i)
        pixels[i] |= 0xFF000000;
}

Argb TableColors::Transformed(Argb pixel) const {
    Argb made = 0;
    cmsDoTransform(transform_.get(), &pixel, &made, 1);
    return made & 0x00FFFFFF;
}

}  // namespace orbelle::graphics
