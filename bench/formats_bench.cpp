#include <benchmark/benchmark.h>

#include <filesystem>

#include "filters/shrink_to_size.h"
#include "formats/export_icon.h"
#include "formats/export_image.h"
#include "formats/icon_sets.h"
#include "formats/volf_reader.h"
#include "formats/volf_store.h"
#include "support/system.h"

namespace orbelle {
namespace {

namespace fs = std::filesystem;
using graphics::Bitmap;

// A shaded disc with a soft edge on nothing, with a little grain, as painted icons have.
Bitmap MakeIconPicture(int side) {
    Bitmap picture(side, side);
    const int radius = side / 2;
    unsigned grain = 1;
    for (int y = 0; y < side; ++y) {
        graphics::Argb* row = picture.MutableRow(y);
        for (int x = 0; x < side; ++x) {
            const int dx = x - radius, dy = y - radius;
            const int inside = (radius * radius - dx * dx - dy * dy) / radius;
            if (inside <= 0)
                continue;
            grain = grain * 1664525 + 1013904223;
            const unsigned shade = static_cast<unsigned>(255 * y / side);
            row[x] = graphics::MakeArgb(static_cast<unsigned>(std::min(255, inside * 16)),
                                        255 - shade, shade / 2 + (grain >> 30), 96);
        }
    }
    return picture;
}

document::Document MakeDocument(int layers) {
    document::Document document;
    document.Master.Width = document.Master.Height = 512;
    for (int i = 0; i < layers; ++i) {
        document::IconLayer layer;
        layer.Image = MakeIconPicture(512);
        layer.ImageWidth = layer.ImageHeight = 512;
        layer.Rect = layer.BaseRect = {static_cast<float>(i), 0, 512, 512};
        document.Master.Layers.push_back(layer);
    }
    return document;
}

void EncodeDocument(benchmark::State& state) {
    const document::Document document = MakeDocument(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::EncodeDocument(document));
}
BENCHMARK(EncodeDocument)->Arg(1)->Arg(10)->Arg(50)->UseRealTime()->Unit(benchmark::kMillisecond);

void DecodeDocument(benchmark::State& state) {
    const auto file = formats::EncodeDocument(MakeDocument(static_cast<int>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::DecodeDocument(graphics::MemorySource(file)));
    state.counters["bytes"] = static_cast<double>(file.size());
}
BENCHMARK(DecodeDocument)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void DrawAndEncodeIcon(benchmark::State& state) {
    const Bitmap page = MakeIconPicture(512);
    for (auto _ : state) {
        std::vector<Bitmap> pictures;
        for (int size : formats::IconSizesFor(512, 512))
            pictures.push_back(filters::ShrinkToSize(page, size));
        benchmark::DoNotOptimize(formats::EncodeIcon(pictures, formats::IconFormat::Bmp));
    }
}
BENCHMARK(DrawAndEncodeIcon)->Unit(benchmark::kMillisecond);

// With the files: the icon and the pictures in the cache folder.
void ExportIcon(benchmark::State& state) {
    const fs::path folder = fs::temp_directory_path() / "orbelle-bench";
    testing::SetEnvironment(testing::EnvironmentIn(folder));
    fs::create_directories(folder);
    const Bitmap page = MakeIconPicture(512);
    for (auto _ : state)
        formats::ExportImage(folder / "icon.ico", formats::ExportFormat::Ico, page, 0);
    fs::remove_all(folder);
}
BENCHMARK(ExportIcon)->Unit(benchmark::kMillisecond);

// All six, with the files, fast (0) or small (1).
void ExportSets(benchmark::State& state) {
    const fs::path folder = fs::temp_directory_path() / "orbelle-bench";
    const formats::SetSource source{{MakeIconPicture(512)}, 0, "icon"};
    using enum formats::IconSet;
    constexpr formats::IconSet kAll[] = {Windows, MacOs, Linux, Web, Android, Ios};
    formats::ExportSettings settings;
    settings.Packing = state.range(0) ? graphics::PngPacking::Small : graphics::PngPacking::Fast;
    for (auto _ : state) {
        for (const formats::RenderedSet& set : formats::RenderSets(source, kAll, settings))
            formats::WriteSet(folder, set);
    }
    fs::remove_all(folder);
}
BENCHMARK(ExportSets)->Arg(0)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orbelle
