// Pictures of other colours and other kinds, beside what they are measured by: the same picture
// without a profile, the library alone.
#include <benchmark/benchmark.h>
#include <lcms2.h>
#include <webp/decode.h>
#include <webp/encode.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/checksum.h"
#include "graphics/codecs/color_conversion.h"
#include "graphics/codecs/image_files.h"

namespace orbelle {
namespace {

using graphics::Bitmap;
using FileBytes = std::vector<std::uint8_t>;

constexpr int kSide = 512;

// Like a photograph to a codec: colours that flow, with a little noise.
Bitmap Picture() {
    std::mt19937 random(1);
    Bitmap picture(kSide, kSide);
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const unsigned noise = random() % 8;
            picture.SetPixel(x, y,
                             graphics::MakeArgb(255, (x / 3 + noise) & 0xFF, (y / 3 + noise) & 0xFF,
                                                ((x + y) / 5 + noise) & 0xFF));
        }
    }
    return picture;
}

void AppendBig(FileBytes& file, std::uint32_t number) {
    const std::uint8_t bytes[] = {
        static_cast<std::uint8_t>(number >> 24), static_cast<std::uint8_t>(number >> 16),
        static_cast<std::uint8_t>(number >> 8), static_cast<std::uint8_t>(number)};
    file.insert(file.end(), std::begin(bytes), std::end(bytes));
}

// With light itself for its samples and other primary colours, as a chunk says.
FileBytes WithChunk(const std::string& name, std::initializer_list<std::uint32_t> numbers,
                    FileBytes file) {
    FileBytes named(name.begin(), name.end());
    for (const std::uint32_t number : numbers)
        AppendBig(named, number);
    FileBytes chunk;
    AppendBig(chunk, static_cast<std::uint32_t>(named.size() - 4));
    chunk.insert(chunk.end(), named.begin(), named.end());
    AppendBig(chunk, graphics::Crc32(named));
    file.insert(file.begin() + 33, chunk.begin(), chunk.end());
    return file;
}

void Decode(benchmark::State& state, const FileBytes& file) {
    for (auto _ : state)
        benchmark::DoNotOptimize(graphics::DecodeImage(file));
}

void PngWithoutProfile(benchmark::State& state) {
    Decode(state, graphics::EncodePng(Picture()));
}
BENCHMARK(PngWithoutProfile)->Unit(benchmark::kMillisecond);

void PngOfOtherColors(benchmark::State& state) {
    FileBytes file = graphics::EncodePng(Picture());
    file = WithChunk("gAMA", {45455}, file);
    Decode(state, WithChunk("cHRM", {31270, 32900, 64000, 33000, 21000, 71000, 15000, 6000}, file));
}
BENCHMARK(PngOfOtherColors)->Unit(benchmark::kMillisecond);

void MakeConversion(benchmark::State& state) {
    graphics::Chromaticities primaries;
    primaries.Green[0] = 0.21;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            graphics::ColorConversion::OfGamma(1 / 2.2, primaries, graphics::FileChannels::Rgb));
}
BENCHMARK(MakeConversion)->Unit(benchmark::kMicrosecond);

FileBytes MakeWebp(bool isLossless) {
    const Bitmap picture = Picture();
    const auto* pixels = reinterpret_cast<const std::uint8_t*>(picture.Row(0));
    std::uint8_t* bytes = nullptr;
    const std::size_t size = isLossless
                                 ? WebPEncodeLosslessBGRA(pixels, kSide, kSide, kSide * 4, &bytes)
                                 : WebPEncodeBGRA(pixels, kSide, kSide, kSide * 4, 80, &bytes);
    FileBytes file(bytes, bytes + size);
    WebPFree(bytes);
    return file;
}

void Webp(benchmark::State& state) {
    Decode(state, MakeWebp(state.range(0) != 0));
}
BENCHMARK(Webp)->ArgName("lossless")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void WebpByTheLibrary(benchmark::State& state) {
    const FileBytes file = MakeWebp(state.range(0) != 0);
    for (auto _ : state) {
        int width = 0, height = 0;
        std::uint8_t* pixels = WebPDecodeBGRA(file.data(), file.size(), &width, &height);
        benchmark::DoNotOptimize(pixels);
        WebPFree(pixels);
    }
}
BENCHMARK(WebpByTheLibrary)->ArgName("lossless")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void Svg(benchmark::State& state) {
    std::string document = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>";
    for (int i = 0; i < 200; ++i)
        document += "<circle cx='" + std::to_string(i * 37 % 100) + "' cy='" +
                    std::to_string(i * 53 % 100) + "' r='9' fill-opacity='.5' fill='#" +
                    std::to_string(100000 + i * 997) + "'/>";
    document += "</svg>";
    Decode(state, FileBytes(document.begin(), document.end()));
}
BENCHMARK(Svg)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace orbelle
