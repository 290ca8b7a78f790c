// The selection of the document: a region built up from shapes, and cutting pictures along it.
#pragma once

#include <span>

#include "graphics/bitmap.h"
#include "graphics/drawing_context.h"
#include "graphics/geometry.h"
#include "graphics/region.h"

namespace orbelle::document {

enum class FrameShape { Rectangle = 0, Ellipse = 1 };

// What TakeOut has copied.
struct TakenOut {
    graphics::Bitmap Image;  // empty: nothing was copied
    graphics::RectI Area;    // page pixels
};

// The selection is kept in page pixels. One that was never begun or has ended holds no region.
class Selection {
public:
    // Begins a selection that has no shape yet: its region is the whole plane.
    void Start();
    // Ends the selection when it has a shape.
    void Clear();
    // The whole of a page of that size in place of what was selected.
    void SelectAll(int pageWidth, int pageHeight);
    // What is not selected of a page of that size; ends the selection when that is nothing. Nothing
    // happens without a selection.
    void Invert(int pageWidth, int pageHeight);
    // Keeps what lies on a page of that size; ends the selection when that is nothing.
    void KeepOnPage(int pageWidth, int pageHeight);
    // Whether anything was selected; shapes without a pixel count too.
    bool Exists() const { return shapeCount_ >= 1; }
    // Whether a pixel of it lies on a page of that size.
    bool IsOnPage(int pageWidth, int pageHeight) const;

    // What is selected, page pixels. The whole plane before the first shape; null: none was begun.
    const graphics::Region& Region() const { return region_; }

    // The bounds of the selection, page pixels, each number rounded to nearest, ties to even.
    graphics::RectI Bounds() const;
    // Each adds one shape to the selection, the first one in place of the whole plane. Page pixels.
    // An unknown shape adds no pixels.
    void AddFrame(const graphics::RectF& box, FrameShape shape);
    // Fewer than three points add no pixels.
    void AddPolygon(std::span<const graphics::PointF> points);

    // Darkens the page except for the selection, and what is selected off the page. `page` is the
    // visible page in scene pixels; the selection lies `offset` from its corner, `scale` scene
    // pixels a page pixel. Nothing happens without a selection.
    void DrawShade(graphics::DrawingContext& scene, const graphics::RectF& page,
                   graphics::PointF offset, double scale) const;

    // Of a picture drawn imageWidth x imageHeight large at `place` on the page (page pixels). What
    // is selected off the page does not count. `copy` gives the selected pixels as a picture of the
    // selection's bounds. `cut`, done after, leaves in `image`, now imageWidth x imageHeight large,
    // only what is not selected; nothing changes for a size no bitmap can have.
    TakenOut TakeOut(graphics::Bitmap& image, int imageWidth, int imageHeight, int pageWidth,
                     int pageHeight, graphics::PointF place, bool cut, bool copy) const;

private:
    graphics::Region CutToPage(int pageWidth, int pageHeight) const;
    void AddShape(const graphics::Path& path);

    graphics::Region region_;
    int shapeCount_ = 0;
};

}  // namespace orbelle::document
