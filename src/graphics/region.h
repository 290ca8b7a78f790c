// A set of pixels of the plane, built from rectangles and paths.
#pragma once

#include <memory>
#include <vector>

#include "graphics/enums.h"
#include "graphics/geometry.h"
#include "graphics/matrix.h"
#include "graphics/path.h"
#include "graphics/pixel_mask.h"

namespace orbelle::graphics {

// A value with shared contents. A default-made Region is the zero handle ("no region"), which is
// not the same as an empty one. Pixel (i, j) belongs to a shape when the point (i, j) lies in it,
// left and top edges included. The shapes keep their own numbers until pixels are asked for, so
// moving by fractions or scaling loses nothing. Asking fills what copies share: one thread at a
// time, also for reading.
class Region {
public:
    Region() = default;
    static Region Infinite();
    static Region Empty();
    // Zero or negative width or height, or not a number: an empty region.
    static Region FromRect(const RectF& rect);
    // A null path gives no region. Outlines end two largest bitmaps away from the origin.
    static Region FromPath(const Path& path);
    // From rectangles of whole pixels that do not overlap, in time linear in their number when they
    // come by rows from the top, left to right.
    static Region FromPixelRects(std::vector<RectI> rects);
    // The same pixels as those of the mask's rectangles. As long as it is only moved, and asked for
    // points and its box alone, no rectangle is made of it.
    static Region FromMask(PixelMask mask);

    bool IsNull() const { return !node_; }

    // Combining with no region changes nothing; no region takes only a replacement.
    void CombineRect(const RectF& rect, CombineMode mode);
    void Combine(const Region& other, CombineMode mode);
    void Translate(float dx, float dy);
    void Transform(const Matrix& matrix);

    // A single rectangle's or path's own box, unrounded; of pixels or a combination the tight box
    // of the pixels. Infinite: (-4194304, -4194304, 8388608, 8388608). Empty or null: all zero.
    RectF Bounds() const;

    // Whether the pixel floor(x + 0.5), floor(y + 0.5) belongs to the region.
    bool IsVisiblePoint(float x, float y) const;

    // No pixel at all (true for the zero handle).
    bool IsEmpty() const;

    // The pixels as rectangles that do not overlap, by y and then x; rows are joined into higher
    // rectangles where they are alike. Cut to `within`, so that an infinite region can be listed.
    std::vector<RectI> Rects(const RectI& within) const;
    // The same for regions that are not infinite.
    std::vector<RectI> Rects() const;

    struct Node;

private:
    explicit Region(std::shared_ptr<Node> node) : node_(std::move(node)) {}
    std::shared_ptr<Node> node_;
};

}  // namespace orbelle::graphics
