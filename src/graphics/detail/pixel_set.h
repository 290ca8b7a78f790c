// The pixels of a region: the one place that speaks with the region algebra library.
#pragma once

#include <pixman.h>

#include <span>
#include <vector>

#include "graphics/detail/scan_conversion.h"
#include "graphics/enums.h"
#include "graphics/geometry.h"

namespace orbelle::graphics {

// The plane ends here; what lies beyond is cut off.
inline constexpr RectI kPlane{-4194304, -4194304, 8388608, 8388608};

// A set of whole pixels of the plane, unchanging once made. Throws std::bad_alloc without memory.
class PixelSet {
public:
    PixelSet() { pixman_region32_init(&region_); }
    // Linear for rectangles that come by y and then x; overlaps are allowed, empty ones dropped.
    explicit PixelSet(std::span<const RectI> rects);
    // Moved by less than 2^24 pixels; not cut to the plane.
    PixelSet(const PixelSet& other, int dx, int dy);
    // Not for CombineMode::Replace.
    PixelSet(const PixelSet& first, const PixelSet& second, CombineMode mode);
    PixelSet(const PixelSet&) = delete;
    PixelSet& operator=(const PixelSet&) = delete;
    ~PixelSet() { pixman_region32_fini(&region_); }

    bool IsEmpty() const { return !pixman_region32_not_empty(&region_); }
    bool Contains(int x, int y) const;
    // All zero when empty.
    RectI Bounds() const;
    // By y and then x, in bands: rectangles that share a row share top and bottom.
    std::vector<RectI> Rects() const;

private:
    pixman_region32_t region_;
};

}  // namespace orbelle::graphics
