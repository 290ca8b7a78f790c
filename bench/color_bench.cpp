// Colour adjustments and state looks on icons of 48 x 48 and pages of 512 x 512; "pixel" is the
// time per pixel.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "filters/color_adjustments.h"
#include "filters/state_looks.h"

namespace orbelle::bench {
namespace {

template <class Change>
void OnPicture(benchmark::State& state, Change change) {
    const int size = static_cast<int>(state.range(0));
    graphics::Bitmap picture = MakePicture(Content::HalfTransparent, size);
    for (auto _ : state) {
        change(picture);
        benchmark::DoNotOptimize(picture.Pixels());
    }
    state.counters["pixel"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * size * size,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Hue(benchmark::State& state) {
    OnPicture(state, [](auto& picture) { filters::HueColor(picture, 140); });
}
BENCHMARK(Hue)->Arg(48)->Arg(512);

void Saturation(benchmark::State& state) {
    OnPicture(state, [](auto& picture) { filters::SaturationColor(picture, 25); });
}
BENCHMARK(Saturation)->Arg(48)->Arg(512);

void Brightness(benchmark::State& state) {
    OnPicture(state, [](auto& picture) { filters::BrightnessColor(picture, 1.4, -20); });
}
BENCHMARK(Brightness)->Arg(48)->Arg(512);

void DisabledStyle(benchmark::State& state) {
    OnPicture(state, [](auto& picture) {
        filters::DisabledStyle(picture, picture.Width(), picture.Height());
    });
}
BENCHMARK(DisabledStyle)->Arg(48)->Arg(512);

void HotStyle(benchmark::State& state) {
    OnPicture(state, [](auto& picture) {
        filters::HotStyle(picture, picture.Width(), picture.Height(), 0.65F);
    });
}
BENCHMARK(HotStyle)->Arg(48)->Arg(512);

}  // namespace
}  // namespace orbelle::bench
