// Steps that follow the hand: a slider's change with filter, composition and scene.
#include <benchmark/benchmark.h>

#include "editing/adjust_sliders.h"
#include "editor_page.h"

namespace orbelle::bench {
namespace {

void AdjustmentStep(benchmark::State& state) {
    EditorPage page(10, static_cast<int>(state.range(1)));
    const auto adjustment = static_cast<editing::Adjustment>(state.range(0));
    page.Step([&](editing::Editor& editor) { PressAdjustment(editor, adjustment); });
    int position = 0;
    for (auto _ : state) {
        position = (position + 7) % 101;
        page.Step([&](editing::Editor& editor) { ChangeAdjustment(editor, adjustment, position); });
    }
    page.Step([&](editing::Editor& editor) { ReleaseAdjustment(editor, adjustment); });
}
BENCHMARK(AdjustmentStep)
    ->ArgsProduct({{0, 1, 2, 3}, {0, 5, 9}})
    ->ArgNames({"adjustment", "layer"})
    ->Unit(benchmark::kMicrosecond);

void OpacityStep(benchmark::State& state) {
    EditorPage page(10, 5);
    int position = 0;
    page.Step(editing::PressOpacity);
    for (auto _ : state) {
        position = (position + 7) % 101;
        page.Step([&](editing::Editor& editor) { ChangeOpacity(editor, position); });
    }
    page.Step(editing::ReleaseOpacity);
}
BENCHMARK(OpacityStep)->Unit(benchmark::kMicrosecond);

void ScaleStep(benchmark::State& state) {
    EditorPage page(10, 5);
    page.Step(editing::PressScale);
    int position = 0;
    for (auto _ : state) {
        position = (position + 7) % 101;
        page.Step([&](editing::Editor& editor) { ChangeScale(editor, position); });
    }
    page.Step(editing::ReleaseScale);
}
BENCHMARK(ScaleStep)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orbelle::bench
