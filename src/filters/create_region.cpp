#include "filters/create_region.h"

#include <utility>
#include <vector>

#include "graphics/pixel_mask.h"

namespace orbelle::filters {
namespace {

// So many rectangles (512 KiB) are taken for granted.
constexpr std::int64_t kFewRuns = 32768;

// Runs of pixels in all rows.
std::int64_t CountRuns(const graphics::Bitmap& image, graphics::Argb threshold) {
    std::int64_t runs = 0;
    for (int y = 0; y < image.Height(); ++y) {
        const graphics::Argb* row = image.Row(y);
        int runsInRow = image.Width() > 0 && row[0] >= threshold;
        for (int x = 1; x < image.Width(); ++x)
            runsInRow += row[x] >= threshold && row[x - 1] < threshold;
        runs += runsInRow;
    }
    return runs;
}

std::vector<graphics::RectI> ListRuns(const graphics::Bitmap& image, graphics::Argb threshold) {
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
    return runs;
}

}  // namespace

void CreateRegion(const graphics::Bitmap& image, graphics::Region& region, int level) {
    const graphics::Argb threshold = static_cast<graphics::Argb>(level) << 24;
    const std::int64_t runs = CountRuns(image, threshold);
    if (runs == 0)
        return;
    // A bit a pixel is little beside the rectangles of a ragged picture.
    constexpr std::int64_t kPixelsPerRun = 8 * sizeof(graphics::RectI);
    if (runs > kFewRuns && runs * kPixelsPerRun > std::int64_t{image.Width()} * image.Height())
        region = graphics::Region::FromMask(graphics::PixelMask(image, level, -1, 0));
    else
        region = graphics::Region::FromPixelRects(ListRuns(image, threshold));
}

void RebuildRegion(graphics::Region& region, const graphics::Bitmap& image,
                   graphics::PointF place) {
    CreateRegion(image, region, kVisibleAlpha);
    region.Translate(place.X, place.Y);
}

}  // namespace orbelle::filters
