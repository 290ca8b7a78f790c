// The selection on a page of 512 x 512, path gradients and quarter turns of that size.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "document/selection.h"
#include "graphics/rotate_flip.h"

namespace orbelle::bench {
namespace {

using namespace graphics;
using document::Selection;

void DrawSelection(benchmark::State& state) {
    Selection selection = SelectionOfEllipses(static_cast<int>(state.range(0)));
    const auto zoom = static_cast<float>(state.range(1));
    Bitmap scene(1600, 1000);
    DrawingContext context(scene);
    const float side = 512 * zoom;
    const RectF page{(1600 - side) / 2, (1000 - side) / 2, side, side};
    for (auto _ : state) {
        selection.DrawShade(context, page, {0, 0}, zoom);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DrawSelection)
    ->ArgNames({"shapes", "zoom"})
    ->ArgsProduct({{1, 200, 5000}, {1, 8, 20}})
    ->Unit(benchmark::kMillisecond);

// All shapes of a selection one by one.
void BuildSelection(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(SelectionOfEllipses(static_cast<int>(state.range(0))));
}
BENCHMARK(BuildSelection)->ArgName("shapes")->Arg(200)->Arg(5000)->Unit(benchmark::kMicrosecond);

void SelectionBounds(benchmark::State& state) {
    const Selection selection = SelectionOfEllipses(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        // A moved copy has forgotten its pixels.
        graphics::Region moved = selection.Region();
        moved.Translate(1, 0);
        benchmark::DoNotOptimize(moved.Bounds());
    }
}
BENCHMARK(SelectionBounds)->ArgName("shapes")->Arg(200)->Arg(5000)->Unit(benchmark::kMicrosecond);

void TakeOut(benchmark::State& state) {
    const Selection selection = SelectionOfEllipses(static_cast<int>(state.range(0)));
    const Bitmap picture = MakePicture(Content::HalfTransparent, 512);
    for (auto _ : state) {
        Bitmap image = picture;
        benchmark::DoNotOptimize(
            selection.TakeOut(image, 512, 512, 512, 512, {0, 0}, true, true).Image.Pixels());
    }
}
BENCHMARK(TakeOut)->ArgName("shapes")->Arg(1)->Arg(200)->Unit(benchmark::kMillisecond);

void FillWithPathGradient(benchmark::State& state) {
    Path ellipse(FillMode::Winding);
    ellipse.AddEllipse({0, 0, 512, 512});
    const Brush brush = PathGradientBrush{ellipse, 0xC8FF8040, {256, 256}, 0x402040FF};
    Bitmap target(512, 512);
    DrawingContext context(target);
    for (auto _ : state) {
        context.FillPath(brush, ellipse);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(FillWithPathGradient)->Unit(benchmark::kMillisecond);

void RotateFlip(benchmark::State& state) {
    Bitmap image = MakePicture(Content::Opaque, 512);
    for (auto _ : state) {
        ImageRotateFlip(image, static_cast<RotateFlipType>(state.range(0)));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RotateFlip)
    ->ArgName("type")
    ->Arg(1)
    ->Arg(4)
    ->Arg(5)
    ->Arg(6)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orbelle::bench
