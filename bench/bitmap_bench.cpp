#include <benchmark/benchmark.h>

#include "graphics/bitmap.h"

namespace orbelle {
namespace {

void CopyOnWrite(benchmark::State& state) {
    const graphics::Bitmap image(512, 512);
    for (auto _ : state) {
        graphics::Bitmap copy = image;
        benchmark::DoNotOptimize(copy.MutablePixels());
    }
    state.SetItemsProcessed(state.iterations() * 512 * 512);
}
BENCHMARK(CopyOnWrite);

}  // namespace
}  // namespace orbelle
