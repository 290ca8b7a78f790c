#include "graphics/detail/path_gradient.h"

#include <algorithm>
#include <span>

#include "graphics/detail/gradient_mix.h"
#include "graphics/detail/scan_conversion.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "graphics/detail/path_gradient.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#ifndef ORBELLE_GRAPHICS_EDGE_DISTANCE
#define ORBELLE_GRAPHICS_EDGE_DISTANCE
namespace orbelle::graphics {

// Colours are looked up: mixing one for each pixel takes ten times as long. At this many steps a
// channel's error is a thirtieth of a unit before it is rounded.
constexpr int kSteps = 4096;

// The distance from the centre in the triangle between the centre and one edge of the outline: 0 at
// the centre, kSteps on the edge.
class EdgeDistance {
public:
    EdgeDistance(PointF center, PointF start, PointF end) : centerX_(center.X), centerY_(center.Y) {
        const double dx = double{end.X} - start.X, dy = double{end.Y} - start.Y;
        const double area = (start.X - centerX_) * dy - (start.Y - centerY_) * dx;
        isFlat_ = area == 0;
        perColumn_ = kSteps * dy / area;
        perRow_ = kSteps * -dx / area;
    }

    bool IsFlat() const { return isFlat_; }

    // From column 0 on and not from where a run starts: a pixel's colour must not depend on where
    // the painted area begins. With one half, to be rounded down.
    double AtColumn0(int y, double offset) const {
        return (offset - centerX_) * perColumn_ + (y + offset - centerY_) * perRow_ + 0.5;
    }
    double PerColumn() const { return perColumn_; }

private:
    double centerX_, centerY_;
    double perColumn_, perRow_;
    bool isFlat_;
};

// Pixels of an area, row by row.
struct AreaColors {
    Argb* Pixels;
    RectI Area;

    Argb* First(const RectI& run) const {
        return Pixels + static_cast<std::ptrdiff_t>(run.Y - Area.Y) * Area.Width + (run.X - Area.X);
    }
};

}  // namespace orbelle::graphics
#endif

HWY_BEFORE_NAMESPACE();
namespace orbelle::graphics {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Runs are short: whole vectors, whose last pixels are not stored, take less time than a loop that
// ends somewhere else each time. Behind the last pixel there is room for a vector.
void PaintRuns(const AreaColors& colors, std::span<const RectI> runs, const EdgeDistance& distance,
               double offset, const Argb* table) {
    const hn::ScalableTag<double> doubles;
    const hn::Rebind<std::int32_t, decltype(doubles)> ints;
    const hn::Rebind<Argb, decltype(doubles)> d;
    const int lanes = static_cast<int>(hn::Lanes(doubles));
    const auto perColumn = hn::Set(doubles, distance.PerColumn());
    const auto most = hn::Set(doubles, double{kSteps});
    for (const RectI& run : runs) {
        const auto atColumn0 = hn::Set(doubles, distance.AtColumn0(run.Y, offset));
        Argb* const first = colors.First(run);
        for (int i = 0; i < run.Width; i += lanes) {
            const auto step = hn::Add(atColumn0, hn::Mul(hn::Iota(doubles, run.X + i), perColumn));
            const auto within = hn::Min(hn::Max(step, hn::Zero(doubles)), most);
            const auto found = hn::GatherIndex(d, table, hn::DemoteTo(ints, within));
            hn::BlendedStore(found, hn::FirstN(d, run.Width - i), d, first + i);
        }
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace orbelle::graphics
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace orbelle::graphics {

HWY_EXPORT(PaintRuns);

namespace {

constexpr std::size_t kRoomBehind = 32;  // no vector is longer

std::vector<Argb> ColorTable(Argb centerColor, Argb surroundColor) {
    std::vector<Argb> table(kSteps + 1);
    for (int i = 0; i <= kSteps; ++i)
        table[i] = MixPremultiplied(centerColor, surroundColor, static_cast<double>(i) / kSteps);
    return table;
}

// Sets the pixels of `area` that no run covers to `color`; the runs come by y and then x.
void FillOutside(std::vector<Argb>& colors, Argb color, const RectI& area,
                 const std::vector<RectI>& runs) {
    auto filled = colors.begin();
    for (const RectI& run : runs) {
        const auto first = colors.begin() +
                           static_cast<std::ptrdiff_t>(run.Y - area.Y) * area.Width +
                           (run.X - area.X);
        std::fill(filled, first, color);
        filled = first + run.Width;
    }
    std::fill(filled, colors.end(), color);
}

}  // namespace

std::vector<Argb> PathGradientBrush::ColorsOf(const RectI& area, double offset) const {
    const std::vector<Argb> table = ColorTable(CenterColor, SurroundColor);
    const Argb surround = table.back();
    const std::size_t count = static_cast<std::size_t>(area.Width) * area.Height;
    std::vector<Argb> colors(count + kRoomBehind, surround);
    const std::vector<FlatFigure> figures = Outline.Flatten();
    std::vector<RectI> runs;
    for (const FlatFigure& figure : figures) {
        if (!IsFinite(figure) || !IsFinite({{CenterPoint}, false}))
            continue;
        for (std::size_t i = 0; i < figure.Points.size(); ++i) {
            const PointF start = figure.Points[i];
            const PointF end = figure.Points[i + 1 < figure.Points.size() ? i + 1 : 0];
            const EdgeDistance distance(CenterPoint, start, end);
            if (distance.IsFlat())
                continue;
            // Neighbouring triangles share a side and so its exact crossings: no pixel of the
            // inside is left out.
            PixelsInsideTriangle({CenterPoint, start, end}, offset, area, runs);
            HWY_DYNAMIC_DISPATCH(PaintRuns)
            ({colors.data(), area}, runs, distance, offset, table.data());
        }
    }
    colors.resize(count);
    // Triangles to a centre outside the outline reach beyond it.
    FillOutside(colors, surround, area, PixelsInside(figures, Outline.Fill(), offset, area));
    return colors;
}

}  // namespace orbelle::graphics
#endif  // HWY_ONCE
