#include "filters/selection_region.h"

#include <algorithm>
#include <cmath>

namespace orbelle::filters {

using namespace graphics;

namespace {

constexpr Argb kShade = MakeARGB(100, 0, 0, 0);

// The picture on a blank canvas of the given size, clipped to the canvas combined with `selection`.
Bitmap DrawnWithin(const Region& selection, CombineMode mode, int width, int height,
                   const Bitmap& image, const RectF& dest) {
    Bitmap canvas(width, height);
    Region clip = Region::FromRect({0, 0, static_cast<float>(width), static_cast<float>(height)});
    clip.Combine(selection, mode);
    DrawingContext context(canvas);
    context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context.SetClipRegion(clip, CombineMode::Replace);
    context.DrawImageRect(image, dest);
    return canvas;
}

}  // namespace

RectF NormalizeRect(float x2, float y2, float x1, float y1) {
    x2 = std::max(x2, 0.0F);
    x1 = std::max(x1, 0.0F);
    return {std::min(x1, x2), std::min(y1, y2), std::abs(x2 - x1), std::abs(y2 - y1)};
}

void ClsFilters::CreateCrop() {
    CropCount = 0;
    CropRegion = Region::Infinite();
}

void ClsFilters::ClearCrop() {
    if (CropCount > 0) {
        CropCount = 0;
        CropRegion = {};
    }
}

RectI ClsFilters::GetRegionRect() const {
    const RectF bounds = CropRegion.Bounds();
    return {RoundToEven(bounds.X), RoundToEven(bounds.Y), RoundToEven(bounds.Width),
            RoundToEven(bounds.Height)};
}

bool ClsFilters::isInCropRregion(float x, float y) const {
    return CropCount > 0 && CropViewRegion.IsVisiblePoint(x, y);
}

void ClsFilters::SetCropDatas(int x, int y, int startX, int startY, CropShape shape) {
    const RectF box = NormalizeRect(static_cast<float>(x), static_cast<float>(y),
                                    static_cast<float>(startX), static_cast<float>(startY));
    Path path(FillMode::Alternate);
    if (shape == CropShape::Rectangle)
        path.AddRectangle(box);
    else if (shape == CropShape::Ellipse)
        path.AddEllipse(box);
    AddShape(path);
}

void ClsFilters::AddPolygonToCrop(std::span<const PointF> points) {
    Path path(FillMode::Alternate);
    path.AddPolygon(points);
    AddShape(path);
}

void ClsFilters::AddShape(const Path& path) {
    const Region shape = Region::FromPath(path);
    if (CropCount != 0)
        CropRegion.Combine(shape, CombineMode::Union);
    else
        CropRegion = shape;
    ++CropCount;
}

void ClsFilters::DrawCropRegion(DrawingContext& scene, const RectF& page, PointF offset,
                                double scale) {
    if (CropCount == 0)
        return;
    Matrix toScene;
    toScene.Translate(page.X + offset.X, page.Y + offset.Y, MatrixOrder::Append);
    toScene.Scale(scale, scale, MatrixOrder::Prepend);
    CropViewRegion = CropRegion;
    CropViewRegion.Transform(toScene);

    Region shade = Region::FromRect(page);
    shade.Combine(CropViewRegion, CombineMode::Xor);
    scene.FillRegion(SolidBrush{kShade}, shade);
}

CroppedPicture ClsFilters::CropImage(Bitmap& image, int imageWidth, int imageHeight, int pageWidth,
                                     int pageHeight, PointF place, bool cut, bool copy) const {
    const auto width = static_cast<float>(imageWidth), height = static_cast<float>(imageHeight);
    CroppedPicture result;
    if (copy) {
        const Bitmap selected = DrawnWithin(CropRegion, CombineMode::Intersect, pageWidth,
                                            pageHeight, image, {place.X, place.Y, width, height});
        RectI& area = result.Area;
        area = GetRegionRect();
        // Deliberately without a look at the left and top: a selection that crosses the right or
        // bottom edge of the page is refused.
        area.Width = std::min(area.Width, pageWidth);
        area.Height = std::min(area.Height, pageHeight);
        result.Image = selected.CloneArea(area.X, area.Y, area.Width, area.Height);
    }
    if (cut) {
        Region selection = CropRegion;
        selection.Translate(-place.X, -place.Y);
        const RectF natural{0, 0, static_cast<float>(image.Width()),
                            static_cast<float>(image.Height())};
        const Bitmap rest =
            DrawnWithin(selection, CombineMode::Exclude, imageWidth, imageHeight, image, natural);
        if (!rest.IsEmpty())
            image = rest;
    }
    return result;
}

}  // namespace orbelle::filters
