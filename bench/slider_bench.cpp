// Steps that follow the hand: a slider's change with filter, composition and scene.
#include <benchmark/benchmark.h>

#include "editing/adjust_sliders.h"
#include "editor_page.h"

namespace orbelle::bench {
namespace {

void AdjustmentStep(benchmark::State& state) {
    EditorPage page(10, static_cast<int>(state.range(1)));
    const auto adjustment = static_cast<editing::Adjustment>(state.range(0));
    editing::PressAdjustment(page.editor);
    int position = 0;
    for (auto _ : state)
        editing::ChangeAdjustment(page.editor, adjustment, position = (position + 7) % 101);
    editing::ReleaseAdjustment(page.editor, adjustment);
}
BENCHMARK(AdjustmentStep)
    ->ArgsProduct({{0, 1, 2, 3}, {0, 5, 9}})
    ->ArgNames({"adjustment", "layer"})
    ->Unit(benchmark::kMicrosecond);

void OpacityStep(benchmark::State& state) {
    EditorPage page(10, 5);
    int position = 0;
    for (auto _ : state)
        editing::ChangeOpacity(page.editor, position = (position + 7) % 101);
}
BENCHMARK(OpacityStep)->Unit(benchmark::kMicrosecond);

void ScaleStep(benchmark::State& state) {
    EditorPage page(10, 5);
    editing::PressScale(page.editor);
    int position = 0;
    for (auto _ : state)
        editing::ChangeScale(page.editor, position = (position + 7) % 101);
    editing::ReleaseScale(page.editor);
}
BENCHMARK(ScaleStep)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orbelle::bench
