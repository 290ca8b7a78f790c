// Composing, painting the scene, snapshots.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "document/compositor.h"
#include "document/scene_painter.h"
#include "document/undo_history.h"

namespace orbelle::bench {
namespace {

constexpr auto kNearest = graphics::InterpolationMode::NearestNeighbor;

// Everything from nothing: arguments are layers and content.
void ComposeWhole(benchmark::State& state) {
    const int layers = static_cast<int>(state.range(0));
    document::Page page =
        MakeDocument(static_cast<Content>(state.range(1)), 512, layers, 0.9F).Master;
    for (auto _ : state) {
        document::Compositor compositor;
        graphics::Bitmap canvas;
        compositor.Compose(page, kNearest, canvas);
        benchmark::DoNotOptimize(canvas.Pixels());
    }
    state.SetItemsProcessed(state.iterations() * layers * 512 * 512);
}
BENCHMARK(ComposeWhole)
    ->ArgsProduct({{1, 10, 50},
                   {static_cast<int>(Content::Opaque), static_cast<int>(Content::HalfTransparent),
                    static_cast<int>(Content::MostlyEmpty)}})
    ->ArgNames({"layers", "content"})
    ->Unit(benchmark::kMicrosecond);

// One step of a drag: arguments are the content and the layer of fifty that moves.
void ComposeOneOfFifty(benchmark::State& state) {
    document::Page page = MakeDocument(static_cast<Content>(state.range(0)), 512, 50, 0.9F).Master;
    document::IconLayer& moved = page.Layers[static_cast<std::size_t>(state.range(1))];
    document::Compositor compositor;
    graphics::Bitmap canvas;
    float x = 0;
    for (int i = 0; i < 3; ++i) {
        moved.Rect.X = (x = 1 - x);
        compositor.Compose(page, kNearest, canvas);
    }
    for (auto _ : state) {
        moved.Rect.X = (x = 1 - x);
        compositor.Compose(page, kNearest, canvas);
    }
}
BENCHMARK(ComposeOneOfFifty)
    ->ArgsProduct({{static_cast<int>(Content::HalfTransparent),
                    static_cast<int>(Content::MostlyEmpty)},
                   {0, 25, 49}})
    ->ArgNames({"content", "layer"})
    ->Unit(benchmark::kMicrosecond);

// The same with a small layer that moves on top of fifty full ones.
void ComposeSmallLayerOverFifty(benchmark::State& state) {
    document::Page page = MakeDocument(Content::HalfTransparent, 512, 50).Master;
    document::MakeImageLayer(page, page.Layers.emplace_back(), MakePicture(Content::Icon, 48));
    document::Compositor compositor;
    graphics::Bitmap canvas;
    float x = 0;
    for (auto _ : state) {
        page.Layers.back().Rect.X = (x = 1 - x);
        compositor.Compose(page, kNearest, canvas);
    }
}
BENCHMARK(ComposeSmallLayerOverFifty)->Unit(benchmark::kMicrosecond);

// A tool changed 20 x 20 pixels in a copy of the picture; arguments are the number of layers of
// 512 x 512 and the layer that it draws on.
void ComposeStroke(benchmark::State& state) {
    document::Page page =
        MakeDocument(Content::HalfTransparent, 512, static_cast<int>(state.range(0)), 0.9F).Master;
    document::IconLayer& drawnOn = page.Layers[static_cast<std::size_t>(state.range(1))];
    document::Compositor compositor;
    graphics::Bitmap canvas;
    graphics::Bitmap pictures[] = {drawnOn.Image, drawnOn.Image};
    for (int i = 0; i < 400; ++i)
        pictures[1].SetPixel(300 + i % 20, 300 + i / 20, 0xFF00FF00);
    int step = 0;
    for (int i = 0; i < 3; ++i) {
        drawnOn.Image = pictures[++step % 2];
        compositor.Compose(page, kNearest, canvas);
    }
    for (auto _ : state) {
        drawnOn.Image = pictures[++step % 2];
        compositor.Compose(page, kNearest, canvas);
    }
}
BENCHMARK(ComposeStroke)
    ->Args({1, 0})
    ->Args({50, 0})
    ->Args({50, 49})
    ->ArgNames({"layers", "layer"})
    ->Unit(benchmark::kMicrosecond);

void Snapshot50Layers(benchmark::State& state) {
    auto document = MakeDocument(Content::Icon, 64, 50);
    for (auto& layer : document.Master.Layers)
        layer.Image = graphics::Bitmap(512, 512);
    document::UndoHistory history;
    for (auto _ : state) {
        if (history.UndoIndex() == document::UndoHistory::kMaxSnapshots)
            history.ClearHistory();
        history.PushSnapshot(document, "Crystal");
    }
}
BENCHMARK(Snapshot50Layers)->Unit(benchmark::kMicrosecond);

// On a scene of 1600 x 1000 pixels, with a selection of as many ellipses.
void PaintScene(benchmark::State& state) {
    document::Page page = MakeDocument(Content::Icon, 512, 1).Master;
    document::Compositor compositor;
    graphics::Bitmap canvas;
    compositor.Compose(page, kNearest, canvas);
    document::View view;
    view.SceneWidth = 1600;
    view.SceneHeight = 1000;
    view.Zoom = static_cast<double>(state.range(1));
    view.ViewActive = true;
    graphics::Bitmap scene;
    document::Selection selection = SelectionOfEllipses(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        document::DrawScene(scene, canvas, 0, view, selection);
        benchmark::DoNotOptimize(scene.Pixels());
    }
}
BENCHMARK(PaintScene)
    ->ArgsProduct({{0, 200, 5000}, {1, 8, 20}})
    ->ArgNames({"shapes", "zoom"})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orbelle::bench
