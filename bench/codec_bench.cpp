#include <benchmark/benchmark.h>
#include <gif_lib.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>
// Needs cstdio and cstdlib before it.
#include <jpeglib.h>

#include "graphics/image_files.h"

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
                         ? graphics::MakeARGB(std::min(shadow, 255.0), 0, 0, 0)
                         : graphics::MakeARGB(coverage * 255, 30 + 80 * down + gloss,
                                              90 + 100 * down + gloss, 180 + 15 * down + gloss);
        }
    }
    return image;
}

FileBytes MakeJpeg(const Bitmap& image) {
    jpeg_compress_struct jpeg = {};
    jpeg_error_mgr errors;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = image.Width();
    jpeg.image_height = image.Height();
    jpeg.in_color_space = JCS_EXT_BGRX;
    jpeg.input_components = 4;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, 95, TRUE);
    jpeg_start_compress(&jpeg, TRUE);
    for (int y = 0; y < image.Height(); ++y) {
        auto* row = reinterpret_cast<JSAMPROW>(const_cast<Argb*>(image.Row(y)));
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    FileBytes file(memory, memory + size);
    std::free(memory);
    return file;
}

FileBytes MakeGif(const Bitmap& image) {
    FileBytes file;
    const auto append = [](GifFileType* gif, const GifByteType* data, int count) {
        auto* to = static_cast<FileBytes*>(gif->UserData);
        to->insert(to->end(), data, data + count);
        return count;
    };
    GifFileType* gif = EGifOpen(&file, append, nullptr);
    ColorMapObject* colors = GifMakeMapObject(256, nullptr);
    EGifPutScreenDesc(gif, image.Width(), image.Height(), 8, 0, colors);
    EGifPutImageDesc(gif, 0, 0, image.Width(), image.Height(), false, nullptr);
    std::vector<GifByteType> indexes(image.Width());
    for (int y = 0; y < image.Height(); ++y) {
        std::transform(image.Row(y), image.Row(y) + image.Width(), indexes.begin(),
                       [](Argb c) { return static_cast<GifByteType>(graphics::GreenOf(c)); });
        EGifPutLine(gif, indexes.data(), image.Width());
    }
    GifFreeMapObject(colors);
    EGifCloseFile(gif, nullptr);
    return file;
}

// Shows the time of one pixel and the size of the file.
void Report(benchmark::State& state, const Bitmap& image, const FileBytes& file) {
    const double pixels = static_cast<double>(image.Width()) * image.Height();
    state.counters["s_per_pixel"] = benchmark::Counter(
        pixels, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.counters["file_bytes"] = static_cast<double>(file.size());
}

void EncodePng(benchmark::State& state) {
    const Bitmap image = IconPicture(static_cast<int>(state.range(0)));
    FileBytes file;
    for (auto _ : state)
        file = graphics::EncodePng(image);
    Report(state, image, file);
}
BENCHMARK(EncodePng)->Arg(48)->Arg(256)->Arg(512);

void Decode(benchmark::State& state, FileBytes (*encode)(const Bitmap&)) {
    const Bitmap image = IconPicture(static_cast<int>(state.range(0)));
    const FileBytes file = encode(image);
    for (auto _ : state)
        benchmark::DoNotOptimize(graphics::DecodeImage(file));
    Report(state, image, file);
}
BENCHMARK_CAPTURE(Decode, Png, graphics::EncodePng)->Arg(48)->Arg(256)->Arg(512);
BENCHMARK_CAPTURE(Decode, Jpeg, MakeJpeg)->Arg(512);
BENCHMARK_CAPTURE(Decode, Gif, MakeGif)->Arg(512);
BENCHMARK_CAPTURE(Decode, Bmp, graphics::EncodeBmp)->Arg(512);

}  // namespace
}  // namespace orbelle
