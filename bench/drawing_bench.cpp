#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

#include "graphics/bitmap.h"
#include "graphics/detail/blend.h"
#include "graphics/detail/image_drawing.h"
#include "graphics/drawing_context.h"

namespace orbelle {
namespace {

using namespace graphics;

constexpr int kSide = 512;

// Random pixels; alpha is `alpha`, or random when that is negative.
Bitmap Noise(int alpha) {
    std::mt19937 random(7);
    Bitmap noise(kSide, kSide);
    for (int i = 0; i < kSide * kSide; ++i) {
        const Argb color = static_cast<Argb>(random());
        noise.MutablePixels()[i] = alpha < 0 ? color : SetAlphaByte(color, alpha);
    }
    return noise;
}

// Counts `pixels` a round, as a rate and as time for each.
void CountPixels(benchmark::State& state, double pixels) {
    using benchmark::Counter;
    state.counters["pixels"] = Counter(pixels, Counter::kIsIterationInvariantRate);
    state.counters["per_pixel"] =
        Counter(pixels, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void BlendRows(benchmark::State& state, int sourceAlpha) {
    const Bitmap source = Noise(sourceAlpha);
    const Bitmap background = Noise(-1);
    Bitmap target = background;
    for (auto _ : state) {
        // Blending over and over would make the target opaque: start from the same noise.
        state.PauseTiming();
        std::copy_n(background.Pixels(), kSide * kSide, target.MutablePixels());
        state.ResumeTiming();
        for (int y = 0; y < kSide; ++y)
            BlendRow(target.MutableRow(y), source.Row(y), kSide);
    }
    CountPixels(state, kSide * kSide);
}
BENCHMARK_CAPTURE(BlendRows, random, -1);
BENCHMARK_CAPTURE(BlendRows, opaque, 255);
BENCHMARK_CAPTURE(BlendRows, empty, 0);

void DrawScaled(benchmark::State& state, InterpolationMode mode, int width, int height,
                float opacity) {
    const Bitmap image = Noise(-1);
    Bitmap target(width, height);
    ImageDrawing drawing{.Destination = {0, 0, static_cast<float>(width), float(height)},
                         .Source = {0, 0, kSide, kSide},
                         .Interpolation = mode,
                         .Offset = 0.5,
                         .Attributes = {}};
    if (opacity < 1)
        drawing.Attributes.Matrix = OpacityMatrix(opacity);
    const RectI clip{0, 0, width, height};
    for (auto _ : state)
        DrawImageOn(target, image, drawing, {&clip, 1});
    CountPixels(state, kSide * kSide);
}
BENCHMARK_CAPTURE(DrawScaled, same_size_opacity, InterpolationMode::HighQuality, 512, 512, 0.5F);
BENCHMARK_CAPTURE(DrawScaled, bicubic_to_256, InterpolationMode::HighQuality, 256, 256, 1);
BENCHMARK_CAPTURE(DrawScaled, bicubic_to_16, InterpolationMode::HighQuality, 16, 16, 1);

void DrawZoomed(benchmark::State& state) {
    const Bitmap image = Noise(-1);
    Bitmap target(1600, 1000);
    const ImageDrawing drawing{.Destination = {0, 0, 8 * kSide, 8 * kSide},
                               .Source = {0, 0, kSide, kSide},
                               .Interpolation = InterpolationMode::NearestNeighbor,
                               .Offset = 0.5,
                               .Attributes = {}};
    const RectI clip{0, 0, 1600, 1000};
    for (auto _ : state)
        DrawImageOn(target, image, drawing, {&clip, 1});
    CountPixels(state, 1600 * 1000);
}
BENCHMARK(DrawZoomed);

// A stroke of 500 points: `reach` pixels to either side of the middle, in loops like a hand's.
std::vector<PointF> Loops(float reach) {
    std::vector<PointF> points;
    for (int i = 0; i < 500; ++i) {
        const float angle = static_cast<float>(i) / 500 * 6.2832F;
        points.push_back({256 + reach * std::cos(3 * angle), 256 + reach * std::sin(5 * angle)});
    }
    return points;
}

// Every segment crosses the page.
std::vector<PointF> Scattered() {
    std::mt19937 random(7);
    std::vector<PointF> points(500);
    for (PointF& point : points)
        point = {static_cast<float>(random() % kSide), static_cast<float>(random() % kSide)};
    return points;
}

void DrawPolyline(benchmark::State& state, const std::vector<PointF>& points, float width,
                  SmoothingMode smoothing) {
    Bitmap target(kSide, kSide);
    DrawingContext context(target);
    context.SetSmoothingMode(smoothing);
    for (auto _ : state)
        context.DrawLines({SolidBrush{0x80204060}, width}, points);
}
BENCHMARK_CAPTURE(DrawPolyline, loops_hard, Loops(240), 1, SmoothingMode::None);
BENCHMARK_CAPTURE(DrawPolyline, loops_smooth, Loops(240), 1, SmoothingMode::AntiAlias);
BENCHMARK_CAPTURE(DrawPolyline, loops_smooth_20, Loops(240), 20, SmoothingMode::AntiAlias);
BENCHMARK_CAPTURE(DrawPolyline, dense_hard, Loops(30), 1, SmoothingMode::None);
BENCHMARK_CAPTURE(DrawPolyline, dense_smooth, Loops(30), 1, SmoothingMode::AntiAlias);
BENCHMARK_CAPTURE(DrawPolyline, scattered_hard, Scattered(), 1, SmoothingMode::None);
BENCHMARK_CAPTURE(DrawPolyline, scattered_smooth, Scattered(), 1, SmoothingMode::AntiAlias);
BENCHMARK_CAPTURE(DrawPolyline, across_smooth_20, {{6, 30}, {500, 460}}, 20,
                  SmoothingMode::AntiAlias);

const RectF kBigEllipse{6, 6, 500, 500};

Brush RadialBrush() {
    Path path(FillMode::Winding);
    path.AddEllipse(kBigEllipse);
    return PathGradientBrush{path, 0x80204060, {256, 256}, 0xFFC0A010};
}

void FillBigEllipse(benchmark::State& state, const Brush& brush, SmoothingMode smoothing) {
    Bitmap target(kSide, kSide);
    DrawingContext context(target);
    context.SetSmoothingMode(smoothing);
    for (auto _ : state)
        context.FillEllipse(brush, kBigEllipse);
}
const LinearGradientBrush kAcross{kBigEllipse, 0x80204060, 0xFFC0A010};
BENCHMARK_CAPTURE(FillBigEllipse, solid_hard, SolidBrush{0x80204060}, SmoothingMode::None);
BENCHMARK_CAPTURE(FillBigEllipse, solid_smooth, SolidBrush{0x80204060}, SmoothingMode::AntiAlias);
BENCHMARK_CAPTURE(FillBigEllipse, linear_hard, kAcross, SmoothingMode::None);
BENCHMARK_CAPTURE(FillBigEllipse, linear_smooth, kAcross, SmoothingMode::AntiAlias);
BENCHMARK_CAPTURE(FillBigEllipse, radial_hard, RadialBrush(), SmoothingMode::None);
BENCHMARK_CAPTURE(FillBigEllipse, radial_smooth, RadialBrush(), SmoothingMode::AntiAlias);

void DrawBigEllipse(benchmark::State& state, const Brush& brush, SmoothingMode smoothing) {
    Bitmap target(kSide, kSide);
    DrawingContext context(target);
    context.SetSmoothingMode(smoothing);
    for (auto _ : state)
        context.DrawEllipse({brush, 20}, kBigEllipse);
}
BENCHMARK_CAPTURE(DrawBigEllipse, radial_hard, RadialBrush(), SmoothingMode::None);
BENCHMARK_CAPTURE(DrawBigEllipse, radial_smooth, RadialBrush(), SmoothingMode::AntiAlias);

}  // namespace
}  // namespace orbelle
