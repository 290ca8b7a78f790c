#include "filters/create_region.h"

#include <utility>
#include <vector>

namespace orbelle::filters {

void CreateRegion(const graphics::Bitmap& image, graphics::Region& region, int level) {
    const graphics::Argb threshold = static_cast<graphics::Argb>(level) << 24;
    const int width = image.Width();
    std::vector<graphics::RectI> runs;
    for (int y = 0; y < image.Height(); ++y) {
        const graphics::Argb* row = image.Row(y);
        int x = 0;
        while (x < width) {
            while (x < width && row[x] < threshold)
                ++x;
            const int start = x;
            while (x < width && row[x] >= threshold)
                ++x;
            if (x > start)
                runs.push_back({start - 1, y, x - start, 1});
        }
    }
    if (!runs.empty())
        region = graphics::Region::FromPixelRects(std::move(runs));
}

void RebuildRegion(graphics::Region& region, const graphics::Bitmap& image,
                   graphics::PointF place) {
    CreateRegion(image, region, kVisibleAlpha);
    region.Translate(place.X, place.Y);
}

}  // namespace orbelle::filters
