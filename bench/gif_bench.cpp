#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

#include "bench_pictures.h"
#include "formats/gif_palette.h"
#include "graphics/codecs/image_files.h"

namespace orbelle {
namespace {

using graphics::Bitmap;

// Soft shapes in many tones with a little grain, as photographs have: mostly exact colours that
// come once.
Bitmap Photo(int side) {
    Bitmap image(side, side, graphics::PixelFormat::Rgb24);
    unsigned state = 1;
    for (int y = 0; y < side; ++y) {
        graphics::Argb* row = image.MutableRow(y);
        for (int x = 0; x < side; ++x) {
            const double u = 6.0 * x / side, v = 6.0 * y / side;
            const double light = 128 + 60 * std::sin(u + std::sin(v)) + 40 * std::sin(2.3 * v - u);
            const auto channel = [&](double tint) {
                const double grain = bench::NextRandom(state) % 9;
                return static_cast<unsigned>(std::clamp(light + tint + grain, 0.0, 255.0));
            };
            row[x] =
                graphics::MakeArgb(255, channel(40 * std::sin(u * v / 5)),
                                   channel(30 * std::cos(v)), channel(-40 * std::cos(1.7 * u)));
        }
    }
    return image;
}

Bitmap Gradient(int side) {
    return bench::MakePicture(bench::Content::Opaque, side);
}

Bitmap Icon(int side) {
    return formats::FlattenToKeyColor(bench::MakePicture(bench::Content::Icon, side), 130);
}

Bitmap Noise(int side) {
    Bitmap image(side, side, graphics::PixelFormat::Rgb24);
    unsigned state = 1;
    std::generate_n(image.MutablePixels(), side * side,
                    [&] { return 0xFF000000 | bench::NextRandom(state); });
    return image;
}

// Few exact colours, in alternation.
Bitmap Dots(int side) {
    Bitmap image(side, side, graphics::PixelFormat::Rgb24);
    unsigned state = 1;
    std::generate_n(image.MutablePixels(), side * side,
                    [&] { return 0xFF000000 | bench::NextRandom(state) % 200 * 0x010507; });
    return image;
}

void ReportPixels(benchmark::State& state, int side) {
    state.counters["s_per_pixel"] = benchmark::Counter(
        static_cast<double>(side) * side,
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void GifPalette(benchmark::State& state, Bitmap (*make)(int)) {
    const int side = static_cast<int>(state.range(0));
    const Bitmap image = make(side);
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::PaletteImageGif(image, true));
    ReportPixels(state, side);
}
BENCHMARK_CAPTURE(GifPalette, Photo, Photo)->Arg(48)->Arg(256)->Arg(512);
BENCHMARK_CAPTURE(GifPalette, Gradient, Gradient)->Arg(48)->Arg(256)->Arg(512);
BENCHMARK_CAPTURE(GifPalette, Icon, Icon)->Arg(48)->Arg(256)->Arg(512);
BENCHMARK_CAPTURE(GifPalette, Dots, Dots)->Arg(48)->Arg(512);
BENCHMARK_CAPTURE(GifPalette, Noise, Noise)->Arg(512);

void GifFlatten(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    const Bitmap image = bench::MakePicture(bench::Content::Icon, side);
    for (auto _ : state)
        benchmark::DoNotOptimize(formats::FlattenToKeyColor(image, 130));
    ReportPixels(state, side);
}
BENCHMARK(GifFlatten)->Arg(48)->Arg(512);

void GifEncode(benchmark::State& state, Bitmap (*make)(int)) {
    const int side = static_cast<int>(state.range(0));
    const auto image = formats::PaletteImageGif(make(side), true);
    for (auto _ : state)
        benchmark::DoNotOptimize(graphics::EncodeGif(image));
    ReportPixels(state, side);
}
BENCHMARK_CAPTURE(GifEncode, Photo, Photo)->Arg(48)->Arg(512);
BENCHMARK_CAPTURE(GifEncode, Icon, Icon)->Arg(48)->Arg(512);

void GifDecode(benchmark::State& state, Bitmap (*make)(int)) {
    const int side = static_cast<int>(state.range(0));
    const auto file = graphics::EncodeGif(formats::PaletteImageGif(make(side), true));
    for (auto _ : state)
        benchmark::DoNotOptimize(graphics::DecodeImage(file));
    ReportPixels(state, side);
}
BENCHMARK_CAPTURE(GifDecode, Photo, Photo)->Arg(48)->Arg(512);
BENCHMARK_CAPTURE(GifDecode, Icon, Icon)->Arg(48)->Arg(512);

}  // namespace
}  // namespace orbelle
