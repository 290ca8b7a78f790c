// Operations that look around a pixel, on small and page-sized icons: blur and sharpen, erasers,
// light, relief. "pixel" is the time for one pixel of the picture; the brush has radius 1.5 x its
// size.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "filters/blur_sharpen.h"
#include "filters/edge_relief.h"
#include "filters/erasers.h"
#include "filters/radial_light.h"

namespace orbelle::bench {
namespace {

template <class Operation>
void Measure(benchmark::State& state, Operation operation) {
    const int size = static_cast<int>(state.range(0));
    const auto original = MakePicture(Content::Icon, size);
    for (auto _ : state) {
        auto picture = original;
        operation(picture, size);
        benchmark::DoNotOptimize(picture.Pixels());
    }
    const double pixels = static_cast<double>(size) * size;
    state.counters["pixel"] = benchmark::Counter(
        pixels, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Soften(benchmark::State& state) {
    Measure(state, [](auto& picture, int) { filters::Soften(picture, filters::kBlurLevel); });
}

void Sharpen(benchmark::State& state) {
    Measure(state, [](auto& picture, int) { filters::Sharpen(picture, filters::kSharpenLevel); });
}

void ThreeDStyle(benchmark::State& state) {
    Measure(state,
            [](auto& picture, int) { filters::ThreeDStyle(picture, filters::kStrongLight); });
}

void FreshStyle(benchmark::State& state) {
    Measure(state, [](auto& picture, int size) {
        picture = filters::FreshStyle(picture, size, size).Image;
    });
}

BENCHMARK(Soften)->Arg(48)->Arg(512);
BENCHMARK(Sharpen)->Arg(48)->Arg(512);
BENCHMARK(ThreeDStyle)->Arg(48)->Arg(512);
BENCHMARK(FreshStyle)->Arg(48)->Arg(512);

// Stamps on stamps in the centre of one picture, so that no copy is timed.
void EraseTool(benchmark::State& state) {
    const int size = static_cast<int>(state.range(0));
    const int brush = static_cast<int>(state.range(1));
    auto picture = MakePicture(Content::Opaque, size);
    for (auto _ : state) {
        filters::EraseTool(picture, size / 2, size / 2, brush, 25);
        benchmark::DoNotOptimize(picture.Pixels());
    }
}
BENCHMARK(EraseTool)->ArgNames({"picture", "brush"})->ArgsProduct({{48, 512}, {1, 10, 100}});

void EraseColor(benchmark::State& state) {
    const int size = static_cast<int>(state.range(0));
    auto picture = MakePicture(Content::Opaque, size);
    for (auto _ : state) {
        filters::EraseColor(picture, size / 2, size / 2);
        benchmark::DoNotOptimize(picture.Pixels());
    }
}
BENCHMARK(EraseColor)->Arg(48)->Arg(512);

}  // namespace
}  // namespace orbelle::bench
