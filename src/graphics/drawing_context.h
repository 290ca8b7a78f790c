// Drawing on a bitmap: everything is blended source-over on straight alpha.
#pragma once

#include <span>

#include "graphics/bitmap.h"
#include "graphics/brush.h"
#include "graphics/enums.h"
#include "graphics/image_attributes.h"
#include "graphics/path.h"
#include "graphics/region.h"

namespace orbelle::graphics {

// The part `Source` of a picture, scaled into `Destination`.
struct ImageToDraw {
    Bitmap Image;
    RectI Destination;
    RectI Source;
    ImageAttributes Attributes;
};

// Draws on `target`, which must outlive it; on an empty bitmap nothing is drawn. Coordinates are
// target pixels, (0, 0) the top left; what falls outside is cut.
class DrawingContext {
public:
    explicit DrawingContext(Bitmap& target);

    void SetInterpolationMode(InterpolationMode mode) { interpolation_ = mode; }
    void SetPixelOffsetMode(PixelOffsetMode mode) { pixelOffset_ = mode; }
    void SetSmoothingMode(SmoothingMode mode) { smoothing_ = mode; }

    // Clips are whole pixels, never soft. A path is taken with the pixel offset now in force, a
    // region as it is. Replace sets the clip, Intersect narrows it.
    void SetClipPath(const Path& path, CombineMode mode);
    void SetClipRegion(const Region& region, CombineMode mode);

    // Sets every pixel in the clip to the colour, alpha included, without blending.
    void Clear(Argb color);

    // Hard-edged whatever the smoothing. Zero or negative width or height: nothing.
    void FillRectangle(const Brush& brush, const RectF& rect);
    // Exactly the region's pixels.
    void FillRegion(const Brush& brush, const Region& region);
    // Pixels whose centre is inside, or by coverage with SmoothingMode::AntiAlias.
    void FillPath(const Brush& brush, const Path& path);

    // The outline of the rectangle, hard-edged: at width 1 that of Width + 1 by Height + 1 pixels.
    // Negative width or height, or both zero: nothing.
    void DrawRectangle(const Pen& pen, const RectF& rect);

    // Lines and outlines, hard-edged or by coverage with SmoothingMode::AntiAlias. A hard-edged
    // line of width 1 is one pixel thick, both end pixels drawn; two equal points draw nothing. A
    // pixel is blended once for a whole call. Pens narrower than 1 count as 1. Fewer than two
    // points, or a point that is infinite or not a number: nothing.
    void DrawLine(const Pen& pen, PointF start, PointF end);
    void DrawLines(const Pen& pen, std::span<const PointF> points);
    // Closed by a line from the last point to the first.
    void DrawPolygon(const Pen& pen, std::span<const PointF> points);
    // Negative width or height: nothing.
    void DrawEllipse(const Pen& pen, const RectF& box);
    void FillEllipse(const Brush& brush, const RectF& box);

    // Pixel for pixel with its top left at (x, y), which may be fractions.
    void DrawImage(const Bitmap& image, float x, float y);
    // The whole picture scaled into `dest`.
    void DrawImageRect(const Bitmap& image, const RectF& dest);
    // The part `source` of the picture (what lies outside it is transparent) scaled into `dest`.
    void DrawImageRectRectI(const Bitmap& image, const RectI& dest, const RectI& source,
                            const ImageAttributes& attributes = {});
    // The same for each of several pictures, in turn. Quicker where they lie pixel for pixel.
    void DrawImages(std::span<const ImageToDraw> images);

private:
    double Offset() const;
    // By centres or by coverage, as the smoothing says.
    void FillFigures(const Brush& brush, std::span<const FlatFigure> figures, FillMode fillMode);
    void DrawFigure(const Pen& pen, const FlatFigure& figure, LineJoin join);

    Bitmap& target_;
    Region clip_ = Region::Infinite();
    InterpolationMode interpolation_ = InterpolationMode::Default;
    PixelOffsetMode pixelOffset_ = PixelOffsetMode::Default;
    SmoothingMode smoothing_ = SmoothingMode::None;
};

}  // namespace orbelle::graphics
