#include "filters/gloss_styles.h"

#include "filters/create_region.h"
#include "graphics/drawing_context.h"

namespace orbelle::filters {

using namespace graphics;

std::optional<StylePicture> CrystalStyle(const Bitmap& image) {
    constexpr Argb kGlossTop = MakeARGB(200, 255, 255, 255);
    constexpr Argb kGlossBottom = MakeARGB(20, 255, 255, 255);

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

    Bitmap work(image.Width(), image.Height());
    if (const auto brush = CreateLineBrushFromRect(
            cap, kGlossTop, kGlossBottom, LinearGradientMode::Vertical, WrapMode::TileFlipY)) {
        DrawingContext context(work);
        context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
        context.FillRegion(*brush, gloss);
    }

    StylePicture result{{}, cap.X, cap.Y, RoundToEven(cap.Width), RoundToEven(cap.Height)};
    result.Image = Bitmap(result.Width, result.Height);
    // Two pixels smaller than the source, so that the gloss lies a pixel inside the shape's edge.
    DrawingContext cut(result.Image);
    cut.DrawImageRect(work, {1 - cap.X, 1 - cap.Y, static_cast<float>(image.Width() - 2),
                             static_cast<float>(image.Height() - 2)});
    return result;
}

}  // namespace orbelle::filters
