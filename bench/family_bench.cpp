// Going from page to page, and opening all sizes of an icon file.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>

#include "editing/document_commands.h"
#include "editing/size_commands.h"
#include "editor_page.h"
#include "filters/shrink_to_size.h"
#include "formats/icon_file.h"
#include "graphics/file_io.h"

namespace orbelle::bench {
namespace {

constexpr int kSize = 16;

// From a master of ten layers to the artwork of a size, and back.
void ChangePage(benchmark::State& state) {
    EditorPage page(10, 5);
    page.Step([](editing::Editor& editor) { EditSize(editor, kSize); });
    const bool toMaster = state.range(0) != 0;
    const int from = toMaster ? kSize : document::Family::kMaster;
    const int to = toMaster ? document::Family::kMaster : kSize;
    for (auto _ : state) {
        state.PauseTiming();
        page.Step([=](editing::Editor& editor) { GoToPage(editor, from); });
        state.ResumeTiming();
        page.Step([=](editing::Editor& editor) { GoToPage(editor, to); });
    }
}
BENCHMARK(ChangePage)->ArgName("toMaster")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Fourteen sizes, PNG or bitmaps.
void OpenAllSizes(benchmark::State& state) {
    std::vector<graphics::Bitmap> pictures;
    for (const int size : {256, 128, 96, 80, 72, 64, 60, 48, 40, 36, 32, 24, 20, 16})
        pictures.push_back(filters::ShrinkToSize(MakePicture(Content::Icon, 256), size));
    const auto path = std::filesystem::temp_directory_path() / "orbelle-bench.ico";
    graphics::WriteFile(
        path, formats::EncodeIcon(pictures, state.range(0) != 0 ? formats::IconFormat::Png
                                                                : formats::IconFormat::Bmp));
    EditorPage page(1, 0);
    for (auto _ : state)
        page.Step([&](editing::Editor& editor) { OpenIconFamily(editor, path); });
    std::filesystem::remove(path);
}
BENCHMARK(OpenAllSizes)->ArgName("png")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orbelle::bench
