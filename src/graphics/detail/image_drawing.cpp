#include "graphics/detail/image_drawing.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "graphics/detail/blend.h"
#include "graphics/detail/recoloring.h"
#include "graphics/detail/resampling.h"
#include "graphics/detail/sampling.h"

namespace orbelle::graphics {
namespace {

// Whether every picture pixel falls exactly on a target pixel: no mode changes it then.
bool IsPixelForPixel(const ImageDrawing& drawing) {
    const RectF& to = drawing.Destination;
    return to.Width == static_cast<float>(drawing.Source.Width) &&
           to.Height == static_cast<float>(drawing.Source.Height) && to.X == std::floor(to.X) &&
           to.Y == std::floor(to.Y);
}

// A picture that is drawn pixel for pixel.
struct PlacedImage {
    Bitmap Image;
    int Left, Top;  // where its first pixel comes to lie in the target
    RectI Area;     // the target pixels that it reaches
    Recoloring Changes;

    const Argb* Row(int x, int y) const { return Image.Row(y - Top) + (x - Left); }
};

std::optional<PlacedImage> Place(const Bitmap& image, const ImageDrawing& drawing) {
    if (image.IsEmpty() || !IsPixelForPixel(drawing))
        return {};
    const RectI part = Intersect(drawing.Source, {0, 0, image.Width(), image.Height()});
    // In real numbers: either place may lie at the ends of int.
    const double left = double{drawing.Destination.X} - drawing.Source.X;
    const double top = double{drawing.Destination.Y} - drawing.Source.Y;
    const bool isFar =
        std::abs(left) > 2.0 * kMaxBitmapSide || std::abs(top) > 2.0 * kMaxBitmapSide;
    const int dx = isFar ? 0 : static_cast<int>(left);
    const int dy = isFar ? 0 : static_cast<int>(top);
    const RectI area{part.X + dx, part.Y + dy, part.Width, part.Height};
    return PlacedImage{image, dx, dy, isFar ? RectI{} : area, Recoloring(drawing.Attributes)};
}

// Whether all that changes is alpha, by a factor.
bool IsLayer(const Recoloring& changes) {
    return changes.ChangesNothing() || changes.Factor();
}

// Pictures that reach the same pixels, each of them a layer.
void BlendPlaced(Bitmap& target, std::span<const PlacedImage> images, std::span<const RectI> clip) {
    std::vector<LayerRow> layers(images.size());
    for (const RectI& rect : clip) {
        const RectI area = Intersect(rect, images.front().Area);
        for (int y = area.Y; y < area.Y + area.Height; ++y) {
            std::ranges::transform(images, layers.begin(), [&](const PlacedImage& image) {
                const auto& factor = image.Changes.Factor();
                return LayerRow{image.Row(area.X, y), factor ? &*factor : nullptr};
            });
            BlendLayers(target.MutableRow(y) + area.X, layers, area.Width);
        }
    }
}

void BlendRecolored(Bitmap& target, const PlacedImage& image, std::span<const RectI> clip) {
    std::vector<Argb> changed;
    for (const RectI& rect : clip) {
        const RectI area = Intersect(rect, image.Area);
        for (int y = area.Y; y < area.Y + area.Height; ++y) {
            const Argb* from = image.Row(area.X, y);
            changed.assign(from, from + area.Width);
            image.Changes.Apply(changed);
            BlendRow(target.MutableRow(y) + area.X, changed.data(), area.Width);
        }
    }
}

// The two axes of a drawing that is scaled or lies between pixels.
struct Axes {
    Axis Columns, Rows;
};

Axes AxesOf(const ImageDrawing& drawing, const Bitmap& image) {
    const RectF& to = drawing.Destination;
    const RectI& from = drawing.Source;
    const InterpolationMode mode = drawing.Interpolation;
    return {MakeAxis(to.X, to.Width, from.X, from.Width, image.Width(), mode),
            MakeAxis(to.Y, to.Height, from.Y, from.Height, image.Height(), mode)};
}

RectI Area(PixelRange columns, PixelRange rows) {
    return {columns.Begin, rows.Begin, columns.Count(), rows.Count()};
}

void DrawNearest(Bitmap& target, const Bitmap& image, const ImageDrawing& drawing,
                 std::span<const RectI> clip, const RectI& bounds) {
    const Axes axes = AxesOf(drawing, image);
    const NearestPixels columns =
        FindNearest(axes.Columns, drawing.Offset, {bounds.X, bounds.X + bounds.Width});
    const NearestPixels rows =
        FindNearest(axes.Rows, drawing.Offset, {bounds.Y, bounds.Y + bounds.Height});
    const Recoloring recoloring(drawing.Attributes);
    std::vector<Argb> pixels;
    for (const RectI& rect : clip) {
        const RectI area = Intersect(rect, Area(columns.Range, rows.Range));
        if (area.IsEmpty())
            continue;
        const auto sources =
            std::span(columns.Sources).subspan(area.X - columns.Range.Begin, area.Width);
        pixels.resize(area.Width);
        int gathered = -1;
        for (int y = area.Y; y < area.Y + area.Height; ++y) {
            const int source = rows.Sources[y - rows.Range.Begin];
            if (source != gathered) {
                const Argb* row = image.Row(source);
                std::transform(sources.begin(), sources.end(), pixels.begin(),
                               [row](int x) { return row[x]; });
                recoloring.Apply(pixels);
                gathered = source;
            }
            BlendRow(target.MutableRow(y) + area.X, pixels.data(), area.Width);
        }
    }
}

// The part of a picture with the attributes applied, its rows packed.
std::vector<Argb> RecoloredPart(const Bitmap& image, PixelRange columns, PixelRange rows,
                                const Recoloring& recoloring) {
    std::vector<Argb> part;
    part.reserve(static_cast<std::size_t>(columns.Count()) * rows.Count());
    for (int y = rows.Begin; y < rows.End; ++y)
        part.insert(part.end(), image.Row(y) + columns.Begin, image.Row(y) + columns.End);
    recoloring.Apply(part);
    return part;
}

void DrawSmooth(Bitmap& target, const Bitmap& image, const ImageDrawing& drawing,
                std::span<const RectI> clip, const RectI& bounds) {
    const Axes axes = AxesOf(drawing, image);
    const TapTable columns = FindTaps(axes.Columns, drawing.Interpolation, drawing.Offset,
                                      {bounds.X, bounds.X + bounds.Width});
    const TapTable rows = FindTaps(axes.Rows, drawing.Interpolation, drawing.Offset,
                                   {bounds.Y, bounds.Y + bounds.Height});
    if (columns.Range.IsEmpty() || rows.Range.IsEmpty())
        return;

    const PixelRange neededColumns = columns.Needed(columns.Range);
    const PixelRange neededRows = rows.Needed(rows.Range);
    const Argb* source = image.Row(neededRows.Begin) + neededColumns.Begin;
    std::size_t stride = image.Width();
    std::vector<Argb> recolored;
    if (const Recoloring recoloring(drawing.Attributes); !recoloring.ChangesNothing()) {
        recolored = RecoloredPart(image, neededColumns, neededRows, recoloring);
        source = recolored.data();
        stride = neededColumns.Count();
    }

    std::vector<float> sums(std::size_t{4} * neededColumns.Count());
    std::vector<Argb> pixels(columns.Range.Count());
    for (const RectI& rect : clip) {
        const RectI area = Intersect(rect, Area(columns.Range, rows.Range));
        if (area.IsEmpty())
            continue;
        const PixelRange needed = columns.Needed({area.X, area.X + area.Width});
        const auto columnTaps =
            std::span(columns.Pixels).subspan(area.X - columns.Range.Begin, area.Width);
        for (int y = area.Y; y < area.Y + area.Height; ++y) {
            const Taps& tap = rows.At(y);
            AddUpRows(source + (tap.First - neededRows.Begin) * stride +
                          (needed.Begin - neededColumns.Begin),
                      stride, std::span(rows.Weights).subspan(tap.Weights, tap.Count),
                      needed.Count(), sums.data());
            AddUpColumns(sums.data(), needed.Begin, columnTaps, columns.Weights.data(),
                         pixels.data());
            BlendRow(target.MutableRow(y) + area.X, pixels.data(), area.Width);
        }
    }
}

}  // namespace

void DrawImageOn(Bitmap& target, const Bitmap& image, const ImageDrawing& drawing,
                 std::span<const RectI> clip) {
    if (target.IsEmpty() || image.IsEmpty())
        return;
    // Keeps the pixels as they are while the target, which may be the same bitmap, is written.
    const Bitmap source = image;  // NOLINT(performance-unnecessary-copy-initialization)
    const RectI bounds = BoxAround(clip);
    if (const auto placed = Place(source, drawing); placed && IsLayer(placed->Changes))
        BlendPlaced(target, {&*placed, 1}, clip);
    else if (placed)
        BlendRecolored(target, *placed, clip);
    else if (drawing.Interpolation == InterpolationMode::NearestNeighbor)
        DrawNearest(target, source, drawing, clip, bounds);
    else
        DrawSmooth(target, source, drawing, clip, bounds);
}

void DrawImagesOn(Bitmap& target, std::span<const Bitmap> images,
                  std::span<const ImageDrawing> drawings, std::span<const RectI> clip) {
    // More rows at a time would drive each other out of the cache.
    constexpr std::size_t kMostAtOnce = 8;
    const RectI bounds = BoxAround(clip);
    std::vector<PlacedImage> placed;
    const auto blend = [&] {
        if (!placed.empty())
            BlendPlaced(target, placed, clip);
        placed.clear();
    };
    for (std::size_t i = 0; i < images.size(); ++i) {
        auto next = Place(images[i], drawings[i]);
        if (!next || !IsLayer(next->Changes)) {
            blend();
            DrawImageOn(target, images[i], drawings[i], clip);
            continue;
        }
        next->Area = Intersect(next->Area, bounds);
        if (placed.size() == kMostAtOnce || (!placed.empty() && next->Area != placed[0].Area))
            blend();
        placed.push_back(*std::move(next));
    }
    blend();
}

}  // namespace orbelle::graphics
