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
    editor.Tools.InUse = tool;
    editor.Tools.FillKind = fill;
    editor.Tools.Colors = {0xFFE04030, 0x802040C0};
    editor.Sliders.LineWidth.Value = 20;
    editor.Sliders.BrushOpacity.Value = 100;
    editor.Sliders.BrushSize.Value = 50;
}

// The pointer comes to a place of the page.
void Hand(EditorPage& page, void (*event)(editing::Editor&, const editing::Pointer&), int x,
          int y) {
    page.Step([=](editing::Editor& editor) { event(editor, At(x, y)); });
}

// A drag over most of the page, to and fro; `range` is the number of layers, then the place of the
// selected one in hundredths of the stack.
void DragSteps(benchmark::State& state, Tool tool, editing::FillKind fill) {
    const int layers = static_cast<int>(state.range(0));
    EditorPage page(layers, (layers - 1) * static_cast<int>(state.range(1)) / 100);
    UseTool(page.editor, tool, fill);
    // The Move tool picks the topmost layer.
    if (tool == Tool::Move)
        for (int i = page.editor.Page().SelectedLayer + 1; i < layers; ++i)
            page.editor.Page().Layers[static_cast<std::size_t>(i)].Region =
                graphics::Region::Empty();
    Hand(page, editing::PressScene, 250, 250);
    int step = 0;
    for (auto _ : state) {
        step = (step + 37) % 500;
        Hand(page, editing::MoveScene, step, 500 - step);
    }
    Hand(page, editing::ReleaseScene, step, 500 - step);
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
    Hand(page, editing::PressScene, 0, 0);
    auto& points = std::get<editing::StrokeDrag>(page.editor.Drag).Freehand;
    for (int i = 0; i < 500; ++i)
        points.push_back({static_cast<float>(i * 197 % 512), static_cast<float>(i * 89 % 512)});
    int step = 0;
    for (auto _ : state) {
        points.resize(499);
        step = (step + 37) % 500;
        Hand(page, editing::MoveScene, step, 500 - step);
    }
    Hand(page, editing::ReleaseScene, step, 500 - step);
}
BENCHMARK(PencilStep)->Apply(Layers);

// The stroke for good: smooth, with its undo step and the layer's new region.
void CommitFilledEllipse(benchmark::State& state) {
    EditorPage page(10, 0);
    UseTool(page.editor, Tool::FilledEllipse, editing::FillKind::RadialGradient);
    for (auto _ : state) {
        Hand(page, editing::PressScene, 6, 6);
        Hand(page, editing::ReleaseScene, 500, 500);
        state.PauseTiming();
        page.Step(editing::Undo);
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
        page.editor.Tools.InUse = Tool::PencilEraser;
        const double before = ResidentMebibytes();
        for (int i = 0; i < 5000; ++i) {
            page.editor.Page().SelectedLayer = i % 20;
            const int x = 768 - 544 + i % 64, y = 468 - 244 + i / 64 % 64;
            Hand(page, editing::PressScene, x, y);
            Hand(page, editing::ReleaseScene, x, y);
        }
        state.counters["MiB"] = ResidentMebibytes() - before;
        state.counters["steps"] = page.editor.History.UndoIndex();
    }
}
BENCHMARK(ManyUndoSteps)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace orbelle::bench
