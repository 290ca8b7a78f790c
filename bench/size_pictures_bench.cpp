// The pictures of an icon's sizes: of one, and of all in the strip after a step of the hand.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "editing/adjust_sliders.h"
#include "editing/size_commands.h"
#include "editing/size_strip.h"
#include "editor_page.h"
#include "filters/shrink_to_size.h"
#include "formats/size_previews.h"

namespace {

using namespace orbelle;
using bench::Content;

void ShrinkTo(benchmark::State& state) {
    const graphics::Bitmap page = bench::MakePicture(Content::Icon, 512);
    for (auto _ : state)
        benchmark::DoNotOptimize(filters::ShrinkToSize(page, static_cast<int>(state.range(0))));
}
BENCHMARK(ShrinkTo)->Arg(256)->Arg(64)->Arg(16)->Unit(benchmark::kMicrosecond);

// What the thread of the strip does after each step of a slider on the top one of ten layers; the
// step itself is not timed. Nothing of it holds up the hand.
void StripAfterStep(benchmark::State& state) {
    bench::EditorPage page(10, 9);
    if (state.range(0) > 0)
        page.Step([](editing::Editor& editor) { EditSize(editor, 16); });
    page.Step(editing::PressOpacity);
    formats::SizePreviews previews;
    int step = 0;
    for (auto _ : state) {
        state.PauseTiming();
        page.Step([&](editing::Editor& editor) { ChangeOpacity(editor, 20 + ++step % 60); });
        state.ResumeTiming();
        benchmark::DoNotOptimize(
            previews.Make(page.editor.Document, page.editor.Canvas, StripSizes(page.editor)));
    }
}
BENCHMARK(StripAfterStep)->ArgName("size in force")->Arg(0)->Arg(16)->Unit(benchmark::kMicrosecond);

}  // namespace
