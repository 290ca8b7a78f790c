#include "graphics/detail/image_drawing.h"

#include <algorithm>
#include <cmath>
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

void DrawPixelForPixel(Bitmap& target, const Bitmap& image, const ImageDrawing& drawing,
                       std::span<const RectI> clip) {
    const Recoloring recoloring(drawing.Attributes);
    const RectI part = Intersect(drawing.Source, {0, 0, image.Width(), image.Height()});
    // In real numbers: either place may lie at the ends of int.
    const double left = double{drawing.Destination.X} - drawing.Source.X;
    const double top = double{drawing.Destination.Y} - drawing.Source.Y;
    if (std::abs(left) > 2.0 * kMaxBitmapSide || std::abs(top) > 2.0 * kMaxBitmapSide)
        return;
    const int dx = static_cast<int>(left);
    const int dy = static_cast<int>(top);
    std::vector<Argb> changed;
    for (const RectI& rect : clip) {
        const RectI area = Intersect(rect, {part.X + dx, part.Y + dy, part.Width, part.Height});
        for (int y = area.Y; y < area.Y + area.Height; ++y) {
            const Argb* from = image.Row(y - dy) + (area.X - dx);
            Argb* to = target.MutableRow(y) + area.X;
            if (recoloring.ChangesNothing()) {
                BlendRow(to, from, area.Width);
            } else if (const auto& factor = recoloring.Factor()) {
                BlendRow(to, from, area.Width, *factor);
            } else {
                changed.assign(from, from + area.Width);
                recoloring.Apply(changed);
                BlendRow(to, changed.data(), area.Width);
            }
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
    if (IsPixelForPixel(drawing))
        DrawPixelForPixel(target, source, drawing, clip);
    else if (drawing.Interpolation == InterpolationMode::NearestNeighbor)
        DrawNearest(target, source, drawing, clip, bounds);
    else
        DrawSmooth(target, source, drawing, clip, bounds);
}

}  // namespace orbelle::graphics
