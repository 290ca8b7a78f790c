#include "document/selection.h"

namespace orbelle::document {

using graphics::Bitmap;
using graphics::CombineMode;
using graphics::DrawingContext;
using graphics::Path;
using graphics::PointF;
using graphics::RectF;
using graphics::RectI;
using graphics::RoundToEven;

namespace {

constexpr graphics::Argb kShade = graphics::MakeArgb(100, 0, 0, 0);

RectF RectOfSize(int width, int height) {
    return {0, 0, static_cast<float>(width), static_cast<float>(height)};
}

// The picture on a blank canvas of the given size, clipped to the canvas combined with `selection`.
Bitmap DrawnWithin(const graphics::Region& selection, CombineMode mode, int width, int height,
                   const Bitmap& image, const RectF& dest) {
    Bitmap canvas(width, height);
    graphics::Region clip = graphics::Region::FromRect(RectOfSize(width, height));
    clip.Combine(selection, mode);
    DrawingContext context(canvas);
    context.SetPixelOffsetMode(graphics::PixelOffsetMode::HighQuality);
    context.SetClipRegion(clip, CombineMode::Replace);
    context.DrawImageRect(image, dest);
    return canvas;
}

RectI RoundedBounds(const graphics::Region& region) {
    const RectF bounds = region.Bounds();
    return {RoundToEven(bounds.X), RoundToEven(bounds.Y), RoundToEven(bounds.Width),
            RoundToEven(bounds.Height)};
}

}  // namespace

void Selection::Start() {
    shapeCount_ = 0;
    region_ = graphics::Region::Infinite();
}

void Selection::Clear() {
    if (shapeCount_ > 0) {
        shapeCount_ = 0;
        region_ = {};
    }
}

void Selection::SelectAll(int pageWidth, int pageHeight) {
    Start();
    AddFrame(RectOfSize(pageWidth, pageHeight), FrameShape::Rectangle);
}

void Selection::Invert(int pageWidth, int pageHeight) {
    if (!Exists())
        return;
    graphics::Region rest = graphics::Region::FromRect(RectOfSize(pageWidth, pageHeight));
    rest.Combine(region_, CombineMode::Exclude);
    region_ = rest;
    if (region_.IsEmpty())
        Clear();
}

void Selection::KeepOnPage(int pageWidth, int pageHeight) {
    if (!Exists())
        return;
    region_.CombineRect(RectOfSize(pageWidth, pageHeight), CombineMode::Intersect);
    if (region_.IsEmpty())
        Clear();
}

RectI Selection::Bounds() const {
    return RoundedBounds(region_);
}

bool Selection::IsOnPage(int pageWidth, int pageHeight) const {
    return !CutToPage(pageWidth, pageHeight).IsEmpty();
}

// A selection that lies on the page keeps the bounds of its shape, which the cut would draw tight
// around the pixels.
graphics::Region Selection::CutToPage(int pageWidth, int pageHeight) const {
    const RectI bounds = Bounds();
    graphics::Region onPage = region_;
    if (Intersect(bounds, {0, 0, pageWidth, pageHeight}) != bounds)
        onPage.CombineRect(RectOfSize(pageWidth, pageHeight), CombineMode::Intersect);
    return onPage;
}

void Selection::AddFrame(const RectF& box, FrameShape shape) {
    Path path(graphics::FillMode::Alternate);
    if (shape == FrameShape::Rectangle)
        path.AddRectangle(box);
    else if (shape == FrameShape::Ellipse)
        path.AddEllipse(box);
    AddShape(path);
}

void Selection::AddPolygon(std::span<const PointF> points) {
    Path path(graphics::FillMode::Alternate);
    path.AddPolygon(points);
    AddShape(path);
}

void Selection::AddShape(const Path& path) {
    const graphics::Region shape = graphics::Region::FromPath(path);
    if (shapeCount_ != 0)
        region_.Combine(shape, CombineMode::Union);
    else
        region_ = shape;
    ++shapeCount_;
}

void Selection::DrawShade(DrawingContext& scene, const RectF& page, PointF offset,
                          double scale) const {
    if (shapeCount_ == 0)
        return;
    graphics::Matrix toScene;
    toScene.Translate(page.X + offset.X, page.Y + offset.Y, graphics::MatrixOrder::Append);
    toScene.Scale(scale, scale, graphics::MatrixOrder::Prepend);
    graphics::Region onScene = region_;
    onScene.Transform(toScene);

    graphics::Region shade = graphics::Region::FromRect(page);
    shade.Combine(onScene, CombineMode::Xor);
    scene.FillRegion(graphics::SolidBrush{kShade}, shade);
}

TakenOut Selection::TakeOut(Bitmap& image, int imageWidth, int imageHeight, int pageWidth,
                            int pageHeight, PointF place, bool cut, bool copy) const {
    const auto width = static_cast<float>(imageWidth), height = static_cast<float>(imageHeight);
    graphics::Region selection = CutToPage(pageWidth, pageHeight);
    TakenOut result;
    if (copy) {
        const Bitmap selected = DrawnWithin(selection, CombineMode::Intersect, pageWidth,
                                            pageHeight, image, {place.X, place.Y, width, height});
        const RectI area = RoundedBounds(selection);
        result = {selected.CloneArea(area.X, area.Y, area.Width, area.Height), area};
    }
    if (cut) {
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

}  // namespace orbelle::document
