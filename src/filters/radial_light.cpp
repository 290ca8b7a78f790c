#include "filters/radial_light.h"

#include <algorithm>

#include "filters/create_region.h"
#include "filters/falloff.h"
#include "filters/rounding.h"

namespace orbelle::filters {

using namespace graphics;

RadialLight ThreeDStyle(Bitmap& image, int level) {
    Region body;
    CreateRegion(image, body, kSolidAlpha);
    const RectF bounds = body.Bounds();
    const RadialLight light{RoundToEven(bounds.X), RoundToEven(bounds.Y),
                            RoundToEven(std::max(bounds.Width, bounds.Height))};

    const int third = light.Radius / 3;
    const double most = level * 5.0;
    const Falloff shine{light.X, light.Y, light.X + third, light.Y + third, light.Radius};
    shine.Apply(image, [most](Argb& pixel, double strength) {
        const double more = strength * most;
        pixel = MakeArgb(AlphaOf(pixel), RoundToByte(RedOf(pixel) + more),
                         RoundToByte(GreenOf(pixel) + more), RoundToByte(BlueOf(pixel) + more));
    });
    return light;
}

}  // namespace orbelle::filters
