// Operations on shapes and the styles that draw: pictures of 48 x 48 and 512 x 512.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "filters/antialias_edge.h"
#include "filters/create_region.h"
#include "filters/gloss_styles.h"
#include "filters/light_and_shadow.h"

namespace orbelle::bench {
namespace {

using graphics::Bitmap;

// Runs an operation on a picture of state.range(0) pixels a side and the content state.range(1).
template <typename Operation>
void OnPicture(benchmark::State& state, Operation operation) {
    const int size = static_cast<int>(state.range(0));
    const Bitmap picture = MakePicture(static_cast<Content>(state.range(1)), size);
    for (auto _ : state)
        benchmark::DoNotOptimize(operation(picture));
    state.counters["pixel"] = benchmark::Counter(
        size * size, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

const std::vector<std::vector<std::int64_t>> kIcons = {{48, 512},
                                                       {static_cast<int>(Content::Icon)}};
const std::vector<std::vector<std::int64_t>> kIconsAndBusy = {
    {48, 512}, {static_cast<int>(Content::Icon), static_cast<int>(Content::Busy)}};

void CreateRegion(benchmark::State& state) {
    OnPicture(state, [](const Bitmap& picture) {
        graphics::Region region;
        filters::CreateRegion(picture, region, filters::kVisibleAlpha);
        return region.Bounds();
    });
}
BENCHMARK(CreateRegion)->ArgsProduct(kIconsAndBusy)->ArgNames({"size", "content"});

void AntialiasEdge(benchmark::State& state) {
    OnPicture(state, [](Bitmap picture) {
        filters::AntialiasEdge(picture);
        return picture;
    });
}
BENCHMARK(AntialiasEdge)->ArgsProduct(kIconsAndBusy)->ArgNames({"size", "content"});

void CrystalStyle(benchmark::State& state) {
    OnPicture(state, filters::CrystalStyle);
}
BENCHMARK(CrystalStyle)->ArgsProduct(kIcons);

void OrigamiStyle(benchmark::State& state) {
    OnPicture(state, [](const Bitmap& picture) {
        return filters::OrigamiStyle(picture, filters::Fold::Vertical, 0x0F000000, 0);
    });
}
BENCHMARK(OrigamiStyle)->ArgsProduct(kIcons);

void IosPlate(benchmark::State& state) {
    OnPicture(state, [](const Bitmap& picture) {
        return filters::IosStyle(0xFF2060C0, picture.Width(), picture.Height(), 0, 0);
    });
}
BENCHMARK(IosPlate)->ArgsProduct(kIcons);

void Reflection(benchmark::State& state) {
    OnPicture(state, filters::Reflection);
}
BENCHMARK(Reflection)->ArgsProduct(kIcons);

void GradientBlack(benchmark::State& state) {
    OnPicture(state, filters::GradientBlack);
}
BENCHMARK(GradientBlack)->ArgsProduct(kIcons);

void Shadow(benchmark::State& state) {
    OnPicture(state, [](const Bitmap& picture) { return filters::Shadow(picture, 1); });
}
BENCHMARK(Shadow)->ArgsProduct(kIcons);

}  // namespace
}  // namespace orbelle::bench
