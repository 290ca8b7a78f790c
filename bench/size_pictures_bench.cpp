// The pictures of an icon's sizes.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "filters/shrink_to_size.h"

namespace {

using namespace orbelle;
using bench::Content;

void ShrinkTo(benchmark::State& state) {
    const graphics::Bitmap page = bench::MakePicture(Content::Icon, 512);
    for (auto _ : state)
        benchmark::DoNotOptimize(filters::ShrinkToSize(page, static_cast<int>(state.range(0))));
}
BENCHMARK(ShrinkTo)->Arg(256)->Arg(128)->Arg(96)->Arg(64)->Arg(48)->Arg(32)->Arg(24)->Arg(16)->Unit(
    benchmark::kMicrosecond);

}  // namespace
