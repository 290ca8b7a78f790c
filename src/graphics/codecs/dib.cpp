#include "graphics/codecs/dib.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>

#include "graphics/codecs/image_codecs.h"

namespace orbelle::graphics {
namespace {

constexpr unsigned kCoreHeaderBytes = 12;
constexpr unsigned kInfoHeaderBytes = 40;
constexpr unsigned kOs2HeaderBytes = 64;

bool IsKnownCombination(unsigned bits, DibCompression compression, unsigned headerBytes) {
    switch (compression) {
        case DibCompression::None:
            return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
        case DibCompression::Rle8:
            return bits == 8;
        case DibCompression::Rle4:
            return bits == 4;
        case DibCompression::Masks:
        case DibCompression::MasksWithAlpha:
            // In the OS/2 header these numbers stand for other things.
            return (bits == 16 || bits == 32) && headerBytes != kOs2HeaderBytes;
    }
    return false;
}

// `at`: where masks stand, behind the fields of the oldest header.
ChannelMasks ReadMasks(DibBytes& bytes, const DibHeader& header, unsigned headerBytes,
                       std::uint64_t at) {
    const bool own = header.Compression != DibCompression::None;
    ChannelMasks masks = header.Bits == 16 ? ChannelMasks{0x7C00, 0x03E0, 0x001F, 0}
                                           : ChannelMasks{0x00FF0000, 0x0000FF00, 0x000000FF, 0};
    if (own)
        masks = {bytes.Long(at), bytes.Long(at + 4), bytes.Long(at + 8), 0};
    // Version 3 and later have an alpha mask of their own, in older ones the compression tells.
    const bool hasAlpha = headerBytes >= 56 && headerBytes != kOs2HeaderBytes;
    if ((hasAlpha && (own || header.Bits == 32)) ||
        header.Compression == DibCompression::MasksWithAlpha)
        masks.Alpha = bytes.Long(at + 12);
    return masks;
}

// The bits of a mask, as 0 to 255. Of a channel with more than 8 bits the upper 8 count.
class Channel {
public:
    Channel(std::uint32_t mask, std::uint8_t withoutMask) {
        table_.fill(withoutMask);
        if (mask == 0)
            return;
        const int bits = std::popcount(mask);
        if (mask >> std::countr_zero(mask) != (std::uint64_t{1} << bits) - 1)
            ThrowDamaged("BMP", "a channel's bits are not in a row");
        const int used = std::min(bits, 8);
        shift_ = std::countr_zero(mask) + bits - used;
        maximum_ = (1u << used) - 1;
        for (unsigned value = 0; value <= maximum_; ++value)
            table_[value] =
                static_cast<std::uint8_t>((value * 255 * 2 + maximum_) / (maximum_ * 2));
    }

    unsigned Of(std::uint32_t pixel) const { return table_[pixel >> shift_ & maximum_]; }

private:
    std::array<std::uint8_t, 256> table_;
    int shift_ = 0;
    unsigned maximum_ = 0;
};

// Has `convert` make each row of pixels from the bytes of one row.
template <typename Convert>
void ReadRows(DibBytes& bytes, const DibHeader& header, Argb* pixels, Convert convert) {
    for (std::int64_t y = 0; y < header.Height; ++y) {
        const auto row = bytes.At(header.PixelsAt + y * header.Stride(), header.RowBytes());
        convert(row.data(), header.RowIn(pixels, y));
    }
}

void ReadIndexRows(DibBytes& bytes, const DibHeader& header, Argb* pixels) {
    const std::vector<Argb> palette = ReadDibPalette(bytes, header);
    const unsigned bits = header.Bits;
    const int perByteLog = std::countr_zero(8 / bits);
    const unsigned inByte = 8 / bits - 1;
    const unsigned mask = (1u << bits) - 1;
    ReadRows(bytes, header, pixels, [&](const std::uint8_t* from, Argb* to) {
        for (unsigned x = 0; x < header.Width; ++x)
            to[x] = palette[from[x >> perByteLog] >> (inByte - (x & inByte)) * bits & mask];
    });
}

void ReadTrueColorRows(DibBytes& bytes, const DibHeader& header, Argb* pixels) {
    ReadRows(bytes, header, pixels, [&](const std::uint8_t* from, Argb* to) {
        for (std::int64_t x = 0; x < header.Width; ++x, from += 3)
            to[x] = MakeArgb(255, from[2], from[1], from[0]);
    });
}

void ReadMaskedRows(DibBytes& bytes, const DibHeader& header, Argb* pixels) {
    const Channel red(header.Masks.Red, 0);
    const Channel green(header.Masks.Green, 0);
    const Channel blue(header.Masks.Blue, 0);
    const Channel alpha(header.Masks.Alpha, 255);
    const std::size_t pixelBytes = header.Bits / 8;
    ReadRows(bytes, header, pixels, [&](const std::uint8_t* from, Argb* to) {
        for (std::int64_t x = 0; x < header.Width; ++x, from += pixelBytes) {
            const auto pixel = NumberAt<std::uint32_t>({from, pixelBytes}, 0);
            to[x] = MakeArgb(alpha.Of(pixel), red.Of(pixel), green.Of(pixel), blue.Of(pixel));
        }
    });
}

}  // namespace

std::span<const std::uint8_t> DibBytes::At(std::uint64_t at, std::size_t count) {
    if (at > Size() || Size() - at < count)
        ThrowDamaged("BMP", "the data ends too early");
    if (at < begin_ || at + count > begin_ + piece_.size()) {
        constexpr std::size_t kMaxPieceBytes = std::size_t{64} << 10;
        begin_ = at;
        piece_.resize(std::min<std::uint64_t>(Size() - at, std::max(count, pieceBytes_)));
        piece_.resize(file_.ReadAt(at, piece_));
        pieceBytes_ = std::min(pieceBytes_ * 2, kMaxPieceBytes);
        if (piece_.size() < count)
            ThrowDamaged("BMP", "the data can't be read");
    }
    return std::span(piece_).subspan(at - begin_, count);
}

DibHeader ReadDibHeader(DibBytes& bytes, std::uint64_t place, int heightParts) {
    DibHeader header;
    const unsigned headerBytes = bytes.Long(place);
    if (headerBytes == kCoreHeaderBytes) {
        header.Width = bytes.Short(place + 4);
        header.Height = bytes.Short(place + 6);
        header.Bits = bytes.Short(place + 10);
        header.PaletteEntryBytes = 3;
    } else if (headerBytes >= kInfoHeaderBytes) {
        header.Width = static_cast<std::int32_t>(bytes.Long(place + 4));
        header.Height = static_cast<std::int32_t>(bytes.Long(place + 8));
        header.Bits = bytes.Short(place + 14);
        header.Compression = static_cast<DibCompression>(bytes.Long(place + 16));
        header.ColorsUsed = bytes.Long(place + 32);
    } else {
        ThrowDamaged("BMP", "unknown header");
    }
    header.TopDown = header.Height < 0;
    header.Height = std::abs(header.Height) / heightParts;
    CheckDeclaredSize(header.Width, header.Height);
    if (!IsKnownCombination(header.Bits, header.Compression, headerBytes))
        throw ImageError("the BMP picture is of a kind that is not supported");
    if (header.Bits == 16 || header.Bits == 32)
        header.Masks = ReadMasks(bytes, header, headerBytes, place + kInfoHeaderBytes);

    header.PaletteAt = place + headerBytes;
    // In the oldest header with masks they follow it.
    if (headerBytes == kInfoHeaderBytes && header.Compression == DibCompression::Masks)
        header.PaletteAt += 12;
    if (headerBytes == kInfoHeaderBytes && header.Compression == DibCompression::MasksWithAlpha)
        header.PaletteAt += 16;
    if (header.Bits <= 8) {
        const std::size_t all = std::size_t{1} << header.Bits;
        header.PaletteEntries =
            header.ColorsUsed ? std::min<std::size_t>(all, header.ColorsUsed) : all;
    }
    return header;
}

std::vector<Argb> ReadDibPalette(DibBytes& bytes, const DibHeader& header) {
    std::vector<Argb> palette(256, MakeArgb(255, 0, 0, 0));
    const std::uint64_t room = (header.PixelsAt - header.PaletteAt) / header.PaletteEntryBytes;
    for (std::size_t i = 0; i < std::min<std::uint64_t>(header.PaletteEntries, room); ++i) {
        const auto entry = bytes.At(header.PaletteAt + i * header.PaletteEntryBytes, 3);
        palette[i] = MakeArgb(255, entry[2], entry[1], entry[0]);
    }
    return palette;
}

void RequireDibRows(const DibBytes& bytes, const DibHeader& header) {
    const std::int64_t needed = header.Stride() * (header.Height - 1) + header.RowBytes();
    if (needed > static_cast<std::int64_t>(bytes.Size() - header.PixelsAt))
        ThrowDamaged("BMP", "too little data for its size");
}

void ReadDibRows(DibBytes& bytes, const DibHeader& header, Argb* pixels) {
    if (header.Bits <= 8)
        ReadIndexRows(bytes, header, pixels);
    else if (header.Bits == 24)
        ReadTrueColorRows(bytes, header, pixels);
    else
        ReadMaskedRows(bytes, header, pixels);
}

}  // namespace orbelle::graphics
