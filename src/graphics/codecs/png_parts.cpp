#include "graphics/codecs/png_parts.h"

#include <libdeflate.h>

#include <memory>
#include <new>

namespace orbelle::graphics {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint8_t kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

void AppendNumber(Bytes& bytes, std::size_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
}

// `type` is four letters.
void AppendChunk(Bytes& bytes, const char* type, const Bytes& data) {
    AppendNumber(bytes, data.size());
    const std::size_t start = bytes.size();
    bytes.insert(bytes.end(), type, type + 4);
    bytes.insert(bytes.end(), data.begin(), data.end());
    AppendNumber(bytes, libdeflate_crc32(0, &bytes[start], bytes.size() - start));
}

struct FreeCompressor {
    void operator()(libdeflate_compressor* compressor) const {
        libdeflate_free_compressor(compressor);
    }
};

}  // namespace

Bytes AssemblePng(const PngForm& form, const Bytes& data) {
    Bytes header;
    AppendNumber(header, static_cast<std::size_t>(form.Width));
    AppendNumber(header, static_cast<std::size_t>(form.Height));
    header.insert(header.end(), {static_cast<std::uint8_t>(form.Depth),
                                 static_cast<std::uint8_t>(form.Colors), 0, 0, 0});
    Bytes file(std::begin(kSignature), std::end(kSignature));
    AppendChunk(file, "IHDR", header);
    if (!form.Palette.empty())
        AppendChunk(file, "PLTE", form.Palette);
    if (!form.Alphas.empty())
        AppendChunk(file, "tRNS", form.Alphas);
    AppendChunk(file, "IDAT", data);
    AppendChunk(file, "IEND", {});
    return file;
}

Bytes Deflate(const Bytes& data, int level) {
    const std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(
        libdeflate_alloc_compressor(level));
    if (!compressor)
        throw std::bad_alloc();
    // Most of it stays untouched.
    const std::size_t bound = libdeflate_zlib_compress_bound(compressor.get(), data.size());
    const auto room = std::make_unique_for_overwrite<std::uint8_t[]>(bound);
    const std::size_t size =
        libdeflate_zlib_compress(compressor.get(), data.data(), data.size(), room.get(), bound);
    return {room.get(), room.get() + size};
}

}  // namespace orbelle::graphics
