// All recipes for one small size, as they are shown side by side.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "filters/size_recipes.h"

namespace orbelle::bench {
namespace {

void AllRecipes(benchmark::State& state) {
    const graphics::Bitmap master = MakePicture(static_cast<Content>(state.range(1)), 512);
    for (auto _ : state)
        for (const filters::SizeRecipe recipe : filters::kSizeRecipes)
            benchmark::DoNotOptimize(
                filters::ApplyRecipe(recipe, master, static_cast<int>(state.range(0))));
}
BENCHMARK(AllRecipes)
    ->ArgsProduct({{16, 48, 256},
                   {static_cast<int>(Content::Icon), static_cast<int>(Content::Opaque)}})
    ->ArgNames({"size", "content"})
    ->Unit(benchmark::kMillisecond);

void OneRecipe(benchmark::State& state) {
    const graphics::Bitmap master = MakePicture(Content::Icon, 512);
    const auto recipe = static_cast<filters::SizeRecipe>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(filters::ApplyRecipe(recipe, master, 32));
}
BENCHMARK(OneRecipe)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orbelle::bench
