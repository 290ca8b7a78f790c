#include <benchmark/benchmark.h>

#include "graphics/drawing_context.h"
#include "graphics/region.h"

namespace orbelle {
namespace {

using namespace graphics;

// The runs of a speckled 512 x 512 picture: about 65 000.
std::vector<RectI> SpeckledRuns() {
    std::vector<RectI> runs;
    unsigned random = 1;
    const auto oneToThree = [&random] {
        random = random * 1664525 + 1013904223;
        return 1 + static_cast<int>((random >> 16) % 3);
    };
    for (int y = 0; y < 512; ++y) {
        for (int x = oneToThree(); x + 3 <= 512; x += oneToThree()) {
            const int width = oneToThree();
            runs.push_back({x, y, width, 1});
            x += width;
        }
    }
    return runs;
}

Path RoundedPlate() {
    constexpr float end = 512, radius = 96, near = radius * 0.4477153f;
    Path path(FillMode::Alternate);
    path.AddBezier({0, radius}, {0, near}, {near, 0}, {radius, 0});
    path.AddBezier({end - radius, 0}, {end - near, 0}, {end, near}, {end, radius});
    path.AddBezier({end, end - radius}, {end, end - near}, {end - near, end}, {end - radius, end});
    path.AddBezier({radius, end}, {near, end}, {0, end - near}, {0, end - radius});
    path.CloseFigures();
    return path;
}

void RegionFromPixelRects(benchmark::State& state) {
    const std::vector<RectI> runs = SpeckledRuns();
    for (auto _ : state)
        benchmark::DoNotOptimize(Region::FromPixelRects(runs).IsEmpty());
    state.counters["runs"] = static_cast<double>(runs.size());
}
BENCHMARK(RegionFromPixelRects)->Unit(benchmark::kMillisecond);

void RegionMovedByWholePixels(benchmark::State& state) {
    Region region = Region::FromPixelRects(SpeckledRuns());
    for (auto _ : state) {
        region.Translate(1, 0);
        benchmark::DoNotOptimize(region.IsEmpty());
        region.Translate(-1, 0);
    }
}
BENCHMARK(RegionMovedByWholePixels)->Unit(benchmark::kMillisecond);

// An arrow key held down: a layer's region moves along with it.
void RegionMoved1000Times(benchmark::State& state) {
    const Region still = Region::FromPixelRects(SpeckledRuns());
    for (auto _ : state) {
        Region region = still;
        for (int i = 0; i < 1000; ++i)
            region.Translate(1, 0);
        benchmark::DoNotOptimize(region.IsEmpty());
    }
}
BENCHMARK(RegionMoved1000Times)->Unit(benchmark::kMillisecond);

void RegionUnionOf200Ellipses(benchmark::State& state) {
    for (auto _ : state) {
        Region region = Region::Empty();
        for (int i = 0; i < 200; ++i) {
            Path path(FillMode::Alternate);
            path.AddEllipse({static_cast<float>(i * 37 % 400), static_cast<float>(i * 61 % 400),
                             100.5f, 90.25f});
            region.Combine(Region::FromPath(path), CombineMode::Union);
        }
        benchmark::DoNotOptimize(region.Bounds());
    }
}
BENCHMARK(RegionUnionOf200Ellipses)->Unit(benchmark::kMillisecond);

void FillRoundedPlate(benchmark::State& state) {
    Bitmap bitmap(512, 512);
    DrawingContext context(bitmap);
    context.SetPixelOffsetMode(PixelOffsetMode::HighQuality);
    context.SetSmoothingMode(state.range(0) ? SmoothingMode::AntiAlias : SmoothingMode::None);
    const Path plate = RoundedPlate();
    for (auto _ : state) {
        context.FillPath(SolidBrush{0x80C0A010}, plate);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(FillRoundedPlate)->ArgName("soft")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orbelle
