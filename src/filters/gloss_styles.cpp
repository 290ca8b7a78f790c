#include "filters/gloss_styles.h"

#include "filters/create_region.h"
#include "filters/round_shape.h"
#include "graphics/drawing_context.h"

namespace orbelle::filters {

using namespace graphics;

namespace {

// Where the brush covers the region, on a picture of the source's size.
Bitmap PaintShape(const Bitmap& image, const Region& shape, const RectF& bounds, Argb color1,
                  Argb color2, LinearGradientMode mode) {
    Bitmap work(image.Width(), image.Height());
    if (const auto brush = CreateLineBrushFromRect(bounds, color1, color2, mode)) {
        DrawingContext context(work);
        context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
        context.FillRegion(*brush, shape);
    }
    return work;
}

// The part of `work` within the bounds, with `work` drawn `inset` pixels smaller on every side.
StylePicture CutOut(const Bitmap& work, const RectF& bounds, int inset) {
    StylePicture result{
        {}, bounds.X, bounds.Y, RoundToEven(bounds.Width), RoundToEven(bounds.Height)};
    result.Image = Bitmap(result.Width, result.Height);
    DrawingContext context(result.Image);
    const auto edge = static_cast<float>(inset);
    context.DrawImageRect(
        work, {edge - bounds.X, edge - bounds.Y, static_cast<float>(work.Width() - 2 * inset),
               static_cast<float>(work.Height() - 2 * inset)});
    return result;
}

}  // namespace

std::optional<StylePicture> CrystalStyle(const Bitmap& image) {
    constexpr Argb kGlossTop = MakeArgb(200, 255, 255, 255);
    constexpr Argb kGlossBottom = MakeArgb(20, 255, 255, 255);

    Region gloss;
    CreateRegion(image, gloss, kSolidAlpha);
    if (gloss.IsNull())
        return std::nullopt;
    const RectF body = gloss.Bounds();

    Path ellipse(FillMode::Alternate);
    ellipse.AddEllipse({body.X - static_cast<float>(RoundToEven(body.Width) / 2),
                        body.Y + static_cast<float>(RoundToEven(body.Height) / 3), body.Width * 3,
                        body.Height});
    gloss.Combine(Region::FromPath(ellipse), CombineMode::Exclude);
    const RectF cap = gloss.Bounds();
    // A pixel smaller on each side, so that the gloss lies inside the shape's edge.
    return CutOut(
        PaintShape(image, gloss, cap, kGlossTop, kGlossBottom, LinearGradientMode::Vertical), cap,
        1);
}

std::optional<StylePicture> OrigamiStyle(const Bitmap& image, Fold fold, Argb color1, Argb color2) {
    Region half;
    CreateRegion(image, half, kSolidAlpha);
    if (half.IsNull())
        return std::nullopt;
    RectF cut = half.Bounds();
    const bool horizontal = fold == Fold::Horizontal;
    if (horizontal)
        cut.X += static_cast<float>(RoundToEven(cut.Width) / 2);
    else
        cut.Y += static_cast<float>(RoundToEven(cut.Height) / 2);
    Path rectangle(FillMode::Alternate);
    rectangle.AddRectangle(cut);
    half.Combine(Region::FromPath(rectangle), CombineMode::Exclude);
    const RectF left = half.Bounds();
    return CutOut(
        PaintShape(image, half, left, color2, color1,
                   horizontal ? LinearGradientMode::Horizontal : LinearGradientMode::Vertical),
        left, 0);
}

Plate IosStyle(Argb color, int width, int height, float x, float y) {
    Plate plate{Bitmap(width, height), IosPlatePath(width, height, x, y)};
    DrawingContext context(plate.Image);
    context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context.FillPath(SolidBrush{color}, plate.Path);
    return plate;
}

}  // namespace orbelle::filters
