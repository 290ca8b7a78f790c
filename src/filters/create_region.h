// The shape of a picture, from its alpha.
#pragma once

#include "graphics/bitmap.h"
#include "graphics/geometry.h"
#include "graphics/region.h"

namespace orbelle::filters {

// Thresholds in use: any visible pixel, and the solid body of a picture.
inline constexpr int kVisibleAlpha = 1;
inline constexpr int kSolidAlpha = 150;

// Sets `region` to the pixels of alpha `level` (1 to 255) and above, in picture coordinates, one
// rectangle a horizontal run. Every rectangle lies one pixel to the left of the pixels it stands
// for (docs/oddities.md, "Regions to the left"). A picture without such a pixel leaves `region` as
// it was. Linear in the pixels; the memory of a ragged picture's region is bounded by a
// thirty-second of the picture's.
void CreateRegion(const graphics::Bitmap& image, graphics::Region& region, int level);

// The region of a picture's visible pixels, moved to where the picture lies. A picture without such
// a pixel moves the region as it was (docs/oddities.md, "Blank pictures").
void RebuildRegion(graphics::Region& region, const graphics::Bitmap& image, graphics::PointF place);

}  // namespace orbelle::filters
