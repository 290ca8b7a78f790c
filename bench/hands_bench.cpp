// Steps of a hand on the page: a mouse move of each tool, with composition and scene.
#include <benchmark/benchmark.h>

#include <fstream>

#include "editing/scene_input.h"
#include "editing/tool_palette.h"
#include "editing/undo_commands.h"
#include "editor_page.h"

namespace orbelle::bench {
namespace {

using editing::Tool;

// The page lies in the middle of the scene.
editing::Pointer At(int pageX, int pageY) {
    return {1, 0, static_cast<float>(pageX + 544), static_cast<float>(pageY + 244)};
}

void UseTool(editing::Editor& editor, Tool tool, editing::FillKind fill) {
    editor.CurrentTool = tool;
    editor.FillKind = fill;
    editor.Colors = {0xFFE04030, 0x802040C0};
    editor.Controls.LineWidth.Value = 20;
    editor.Controls.BrushOpacity.Value = 100;
    editor.Controls.BrushSize.Value = 50;
}

// A drag over most of the page, to and fro; `range` is the number of layers, then the place of the
// selected one in hundredths of the stack.
void DragSteps(benchmark::State& state, Tool tool, editing::FillKind fill) {
    const int layers = static_cast<int>(state.range(0));
    EditorPage page(layers, (layers - 1) * static_cast<int>(state.range(1)) / 100);
    UseTool(page.editor, tool, fill);
    // The Move tool picks the topmost layer.
    if (tool == Tool::Move)
        for (int i = page.editor.Document.SelectedLayer + 1; i < layers; ++i)
            page.editor.Document.Layers[static_cast<std::size_t>(i)].Region =
                graphics::Region::Empty();
    editing::PressScene(page.editor, At(250, 250));
    int step = 0;
    for (auto _ : state) {
        step = (step + 37) % 500;
        editing::MoveScene(page.editor, At(step, 500 - step));
    }
    editing::ReleaseScene(page.editor, At(step, 500 - step));
}

void Layers(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgNames({"layers", "place"})->Unit(benchmark::kMillisecond);
    for (const int layers : {1, 10, 50})
        for (const int place : {0, 100})
            if (layers > 1 || place == 0)
                benchmark->Args({layers, place});
}

#define ORBELLE_DRAG(name, tool, fill) BENCHMARK_CAPTURE(DragSteps, name, tool, fill)->Apply(Layers)
ORBELLE_DRAG(Move, Tool::Move, editing::FillKind::Solid);
ORBELLE_DRAG(Line, Tool::Line, editing::FillKind::Solid);
ORBELLE_DRAG(Rectangle, Tool::Rectangle, editing::FillKind::Solid);
ORBELLE_DRAG(Ellipse, Tool::Ellipse, editing::FillKind::Solid);
ORBELLE_DRAG(FilledRectangle, Tool::FilledRectangle, editing::FillKind::VerticalGradient);
ORBELLE_DRAG(FilledEllipse, Tool::FilledEllipse, editing::FillKind::HorizontalGradient);
ORBELLE_DRAG(FilledEllipseRadial, Tool::FilledEllipse, editing::FillKind::RadialGradient);
ORBELLE_DRAG(PencilEraser, Tool::PencilEraser, editing::FillKind::Solid);
ORBELLE_DRAG(BrushEraser, Tool::BrushEraser, editing::FillKind::Solid);
ORBELLE_DRAG(SelectEllipse, Tool::SelectEllipse, editing::FillKind::Solid);
#undef ORBELLE_DRAG

// One more point of a stroke that has 500: all are drawn anew.
void PencilStep(benchmark::State& state) {
    const int layers = static_cast<int>(state.range(0));
    EditorPage page(layers, (layers - 1) * static_cast<int>(state.range(1)) / 100);
    UseTool(page.editor, Tool::Pencil, editing::FillKind::Solid);
    editing::PressScene(page.editor, At(0, 0));
    for (int i = 0; i < 500; ++i)
        page.editor.PencilPoints.push_back(
            {static_cast<float>(i * 197 % 512), static_cast<float>(i * 89 % 512)});
    int step = 0;
    for (auto _ : state) {
        page.editor.PencilPoints.resize(499);
        step = (step + 37) % 500;
        editing::MoveScene(page.editor, At(step, 500 - step));
    }
    editing::ReleaseScene(page.editor, At(step, 500 - step));
}
BENCHMARK(PencilStep)->Apply(Layers);

// The stroke for good: smooth, with its undo step and the layer's new region.
void CommitFilledEllipse(benchmark::State& state) {
    EditorPage page(10, 0);
    UseTool(page.editor, Tool::FilledEllipse, editing::FillKind::RadialGradient);
    for (auto _ : state) {
        editing::PressScene(page.editor, At(6, 6));
        editing::ReleaseScene(page.editor, At(500, 500));
        state.PauseTiming();
        editing::Undo(page.editor);
        state.ResumeTiming();
    }
}
BENCHMARK(CommitFilledEllipse)->Unit(benchmark::kMillisecond);

double ResidentMebibytes() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return static_cast<double>(resident) * 4096 / (1 << 20);
}

// 5,000 steps on twenty layers, each changing one of 64 x 64; the counter tells what they hold.
void ManyUndoSteps(benchmark::State& state) {
    for (auto _ : state) {
        EditorPage page(20, 0);
        page.editor.Document = MakeDocument(Content::Icon, 64, 20);
        page.editor.CurrentTool = Tool::PencilEraser;
        const double before = ResidentMebibytes();
        for (int i = 0; i < 5000; ++i) {
            page.editor.Document.SelectedLayer = i % 20;
            const editing::Pointer pointer = {1, 0, static_cast<float>(768 + i % 64),
                                              static_cast<float>(468 + i / 64 % 64)};
            editing::PressScene(page.editor, pointer);
            editing::ReleaseScene(page.editor, pointer);
        }
        state.counters["MiB"] = ResidentMebibytes() - before;
        state.counters["steps"] = page.editor.History.UndoIndex();
    }
}
BENCHMARK(ManyUndoSteps)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace orbelle::bench
