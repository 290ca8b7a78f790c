#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "formats/gif_palette.h"
#include "graphics/codecs/image_files.h"

namespace orbelle {
namespace {

using graphics::Argb;
using graphics::Bitmap;
using FileBytes = std::vector<std::uint8_t>;

// A glossy disc with a soft edge and a shadow on a transparent ground.
Bitmap IconPicture(int side) {
    Bitmap image(side, side);
    const double centre = side / 2.0 - 0.5;
    for (int y = 0; y < side; ++y) {
        Argb* row = image.MutableRow(y);
        const double down = static_cast<double>(y) / side;
        for (int x = 0; x < side; ++x) {
            const double radius = std::hypot(x - centre, y - centre) / side;
            const double coverage = std::clamp((0.46 - radius) * side / 3, 0.0, 1.0);
            const double shadow = std::max(0.0, 0.5 - radius) * 1500;
            const double gloss = y < centre ? std::max(0.0, 60 - 150 * radius) : 0;
            row[x] = coverage == 0
                         ? graphics::MakeArgb(std::min(shadow, 255.0), 0, 0, 0)
                         : graphics::MakeArgb(coverage * 255, 30 + 80 * down + gloss,
                                              90 + 100 * down + gloss, 180 + 15 * down + gloss);
        }
    }
    return image;
}

FileBytes MakeJpeg(const Bitmap& image) {
    return graphics::EncodeJpeg(image, 99);
}

FileBytes MakeGif(const Bitmap& image) {
    return formats::EncodeGifPicture(image, true, 130);
}

FileBytes MakeFastPng(const Bitmap& image) {
    return graphics::EncodePng(image, graphics::PngPacking::Fast);
}

FileBytes MakeSmallPng(const Bitmap& image) {
    return graphics::EncodePng(image, graphics::PngPacking::Small);
}

// Shows the time of one pixel and the size of the file.
void Report(benchmark::State& state, const Bitmap& image, const FileBytes& file) {
    const double pixels = static_cast<double>(image.Width()) * image.Height();
    state.counters["s_per_pixel"] = benchmark::Counter(
        pixels, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.counters["file_bytes"] = static_cast<double>(file.size());
}

void Encode(benchmark::State& state, FileBytes (*encode)(const Bitmap&)) {
    const Bitmap image = IconPicture(static_cast<int>(state.range(0)));
    FileBytes file;
    for (auto _ : state)
        file = encode(image);
    Report(state, image, file);
}

void Decode(benchmark::State& state, FileBytes (*encode)(const Bitmap&)) {
    const Bitmap image = IconPicture(static_cast<int>(state.range(0)));
    const FileBytes file = encode(image);
    for (auto _ : state)
        benchmark::DoNotOptimize(graphics::DecodeImage(file));
    Report(state, image, file);
}

#define ORBELLE_FORMAT_BENCHMARKS(name, encode)                           \
    BENCHMARK_CAPTURE(Encode, name, encode)->Arg(48)->Arg(256)->Arg(512); \
    BENCHMARK_CAPTURE(Decode, name, encode)->Arg(48)->Arg(256)->Arg(512)
ORBELLE_FORMAT_BENCHMARKS(Png, graphics::EncodePng);
ORBELLE_FORMAT_BENCHMARKS(FastPng, MakeFastPng);
ORBELLE_FORMAT_BENCHMARKS(SmallPng, MakeSmallPng);
ORBELLE_FORMAT_BENCHMARKS(Jpeg, MakeJpeg);
ORBELLE_FORMAT_BENCHMARKS(Gif, MakeGif);
ORBELLE_FORMAT_BENCHMARKS(Bmp, graphics::EncodeBmp);

}  // namespace
}  // namespace orbelle
