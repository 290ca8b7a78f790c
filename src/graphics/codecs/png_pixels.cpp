#include "graphics/codecs/png_pixels.h"

#include <libdeflate.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include "graphics/codecs/png_unfilter.h"

namespace orbelle::graphics {
namespace {

constexpr std::size_t kSignatureBytes = 8;
constexpr std::size_t kNumberBytes = 4;                    // of a chunk's length, name and checksum
constexpr std::size_t kMostBytes = std::size_t{20} << 20;  // of the file, and of its rows

std::uint32_t NumberAt(std::span<const std::uint8_t> bytes, std::size_t place) {
    return std::uint32_t{bytes[place]} << 24 | bytes[place + 1] << 16 | bytes[place + 2] << 8 |
           bytes[place + 3];
}

// Moves what the IDAT chunks hold to the file's beginning. Empty where one is damaged.
std::span<const std::uint8_t> JoinData(std::span<std::uint8_t> file) {
    std::size_t joined = 0;
    bool isBegun = false;
    std::size_t place = kSignatureBytes;
    while (place + 3 * kNumberBytes <= file.size()) {
        const std::size_t length = NumberAt(file, place);
        if (length > file.size() - place - 3 * kNumberBytes)
            return {};
        const std::size_t name = place + kNumberBytes;
        place = name + kNumberBytes + length + kNumberBytes;
        const bool isData = std::memcmp(&file[name], "IDAT", kNumberBytes) == 0;
        if (!isData && isBegun)
            break;
        if (!isData)
            continue;
        isBegun = true;
        if (libdeflate_crc32(0, &file[name], kNumberBytes + length) !=
            NumberAt(file, place - kNumberBytes))
            return {};
        std::memmove(file.data() + joined, file.data() + name + kNumberBytes, length);
        joined += length;
    }
    return file.first(joined);
}

struct FreeDecompressor {
    void operator()(libdeflate_decompressor* decompressor) const {
        libdeflate_free_decompressor(decompressor);
    }
};

// False unless the stream is whole, ends with the data and holds so many bytes. A stream that
// reaches farther back than it says is not for us to judge.
bool InflateAll(std::span<const std::uint8_t> stream, std::uint8_t* to, std::size_t size) {
    constexpr std::size_t kFarthestBack = std::size_t{1} << 15;
    if (stream.empty() || std::size_t{256} << (stream[0] >> 4) < std::min(kFarthestBack, size))
        return false;
    const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(
        libdeflate_alloc_decompressor());
    if (!decompressor)
        throw std::bad_alloc();
    std::size_t read = 0, written = 0;
    return libdeflate_zlib_decompress_ex(decompressor.get(), stream.data(), stream.size(), to, size,
                                         &read, &written) == LIBDEFLATE_SUCCESS &&
           read == stream.size() && written == size;
}

}  // namespace

bool ReadPlainPixels(const ByteSource& file, const PlainPng& picture, Argb* pixels) {
    const std::size_t stride = picture.Width * (picture.HasAlpha ? 4 : 3) + 1;
    const std::size_t size = stride * picture.Height;
    if (file.Size() > kMostBytes || size > kMostBytes)
        return false;
    const auto rows = std::make_unique_for_overwrite<std::uint8_t[]>(size + 1);
    {
        std::vector<std::uint8_t> packed(static_cast<std::size_t>(file.Size()));
        packed.resize(file.ReadAt(0, packed));
        if (!InflateAll(JoinData(packed), rows.get(), size))
            return false;
    }
    const std::vector<Argb> zeros(picture.Width);
    const Argb* above = zeros.data();
    for (std::size_t y = 0; y < picture.Height; ++y) {
        const std::uint8_t* row = rows.get() + y * stride;
        if (*row > kLastPngFilter)
            return false;
        const std::span<Argb> to(pixels + y * picture.Width, picture.Width);
        RestoreRow(*row, row + 1, picture.HasAlpha, to, above);
        above = to.data();
    }
    return true;
}

}  // namespace orbelle::graphics
