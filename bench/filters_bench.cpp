// Operations on one picture of 512 x 512.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "filters/antialias_edge.h"
#include "filters/create_region.h"
#include "filters/gloss_styles.h"

namespace orbelle::bench {
namespace {

void CountPixels(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * 512 * 512);
}

void CreateRegion(benchmark::State& state) {
    const auto picture = MakePicture(static_cast<Content>(state.range(0)), 512);
    for (auto _ : state) {
        graphics::Region region;
        filters::CreateRegion(picture, region, filters::kVisibleAlpha);
        benchmark::DoNotOptimize(region.Bounds());
    }
    CountPixels(state);
}
BENCHMARK(CreateRegion)
    ->Arg(static_cast<int>(Content::Busy))
    ->Arg(static_cast<int>(Content::Icon))
    ->ArgName("content")
    ->Unit(benchmark::kMicrosecond);

void AntialiasEdge(benchmark::State& state) {
    const auto picture = MakePicture(static_cast<Content>(state.range(0)), 512);
    for (auto _ : state) {
        graphics::Bitmap softened = picture;
        filters::AntialiasEdge(softened);
        benchmark::DoNotOptimize(softened.Pixels());
    }
    CountPixels(state);
}
BENCHMARK(AntialiasEdge)
    ->Arg(static_cast<int>(Content::Busy))
    ->Arg(static_cast<int>(Content::Icon))
    ->ArgName("content")
    ->Unit(benchmark::kMicrosecond);

void CrystalStyle(benchmark::State& state) {
    const auto picture = MakePicture(Content::Icon, 512);
    for (auto _ : state)
        benchmark::DoNotOptimize(filters::CrystalStyle(picture));
    CountPixels(state);
}
BENCHMARK(CrystalStyle)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orbelle::bench
