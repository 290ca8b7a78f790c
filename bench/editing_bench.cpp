// Steps that follow the hand: a slider's change with filter, composition and scene.
#include <benchmark/benchmark.h>

#include "bench_pictures.h"
#include "editing/adjust_sliders.h"
#include "editing/view_commands.h"

namespace orbelle::bench {
namespace {

class SilentHost : public editing::EditorHost {
public:
    void ShowMessage(const std::string&) override {}
    void ShowStatus(const std::string&) override {}
    editing::SavePromptAnswer AskSave() override { return editing::SavePromptAnswer::No; }
    std::optional<editing::PageSize> AskPageSize() override { return std::nullopt; }
    std::filesystem::path ShowFileDialog(const std::string&, bool) override { return {}; }
    std::optional<int> AskGifThreshold(const graphics::Bitmap&) override { return std::nullopt; }
    std::optional<int> ChooseIconEntry(const std::vector<formats::IconEntryImage>&) override {
        return 0;
    }
    std::optional<graphics::Argb> AskColor(graphics::Argb) override { return std::nullopt; }
    void SetClipboard(const graphics::Bitmap&, const std::string&) override {}
    bool ClipboardHasPicture() override { return false; }
    graphics::Bitmap ClipboardPicture() override { return {}; }
    std::string ClipboardText() override { return {}; }
    bool Confirm(const std::string&, const std::string&) override { return true; }
};

// Ten layers of 512 x 512 on a page of that size, in a scene of 1600 x 1000 at zoom 1, the layer
// `selected` selected.
struct TenLayers {
    explicit TenLayers(int selected) {
        editor.Document = MakeDocument(Content::Icon, 512, 10);
        editor.Document.SelectedLayer = selected;
        editor.DocumentExists = true;
        editor.View.ViewActive = true;
        editor.View.Zoom = 1;
        editor.View.SceneWidth = 1600;
        editor.View.SceneHeight = 1000;
        editing::Compose(editor);
    }

    SilentHost host;
    editing::Editor editor{host};
};

void AdjustmentStep(benchmark::State& state) {
    TenLayers page(static_cast<int>(state.range(1)));
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
    TenLayers page(5);
    int position = 0;
    for (auto _ : state)
        editing::ChangeOpacity(page.editor, position = (position + 7) % 101);
}
BENCHMARK(OpacityStep)->Unit(benchmark::kMicrosecond);

void ScaleStep(benchmark::State& state) {
    TenLayers page(5);
    editing::PressScale(page.editor);
    int position = 0;
    for (auto _ : state)
        editing::ChangeScale(page.editor, position = (position + 7) % 101);
    editing::ReleaseScale(page.editor);
}
BENCHMARK(ScaleStep)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orbelle::bench
