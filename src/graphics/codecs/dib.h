// Device-independent bitmaps: header, palette and rows, as they stand in BMP files behind the file
// header and in Windows icons by themselves.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/byte_source.h"
#include "graphics/little_endian.h"

namespace orbelle::graphics {

enum class DibCompression : std::uint32_t {
    None = 0,
    Rle8 = 1,
    Rle4 = 2,
    Masks = 3,
    MasksWithAlpha = 6,
};

// A source by absolute places, of which a piece at a time stands in memory; pieces begin small, for
// an icon may hold many small pictures. A read beyond the end throws ImageError.
class DibBytes {
public:
    explicit DibBytes(const ByteSource& file) : file_(file) {}

    std::uint64_t Size() const { return file_.Size(); }
    unsigned Byte(std::uint64_t at) { return Number<std::uint8_t>(at); }
    unsigned Short(std::uint64_t at) { return Number<std::uint16_t>(at); }
    std::uint32_t Long(std::uint64_t at) { return Number<std::uint32_t>(at); }

    // So many bytes in a row, until others are asked for.
    std::span<const std::uint8_t> At(std::uint64_t at, std::size_t count);

private:
    template <typename Type>
    Type Number(std::uint64_t at) {
        return NumberAt<Type>(At(at, sizeof(Type)), 0);
    }

    const ByteSource& file_;
    std::vector<std::uint8_t> piece_;
    std::uint64_t begin_ = 0;  // of the piece in the file
    std::size_t pieceBytes_ = 512;
};

// 0: the pixels have no such channel.
struct ChannelMasks {
    std::uint32_t Red = 0;
    std::uint32_t Green = 0;
    std::uint32_t Blue = 0;
    std::uint32_t Alpha = 0;
};

struct DibHeader {
    std::int64_t Width = 0;
    std::int64_t Height = 0;
    bool TopDown = false;
    unsigned Bits = 0;
    DibCompression Compression = DibCompression::None;
    ChannelMasks Masks;            // of 16 and 32 bits
    std::uint32_t ColorsUsed = 0;  // as it stands there
    std::uint64_t PaletteAt = 0;
    std::size_t PaletteEntries = 0;
    std::size_t PaletteEntryBytes = 4;
    std::uint64_t PixelsAt = 0;  // for the caller to fill

    // Bytes from one row to the next in an uncompressed bitmap.
    std::int64_t Stride() const { return (Width * Bits + 31) / 32 * 4; }

    // Of a row without its padding, which the last one may lack.
    std::int64_t RowBytes() const { return (Width * Bits + 7) / 8; }

    // Where a row of the file stands in a bitmap of Width x Height pixels.
    Argb* RowIn(Argb* pixels, std::int64_t fileRow) const {
        return pixels + (TopDown ? fileRow : Height - 1 - fileRow) * Width;
    }

    bool IsRunLengthCoded() const {
        return Compression == DibCompression::Rle8 || Compression == DibCompression::Rle4;
    }
};

// The header at that place, of whose height the `heightParts`th part is the picture's. Throws
// ImageError when it is cut short, or no bitmap can have that size or kind.
DibHeader ReadDibHeader(DibBytes& bytes, std::uint64_t place, int heightParts = 1);

// 256 colours; those that the file does not give are opaque black.
std::vector<Argb> ReadDibPalette(DibBytes& bytes, const DibHeader& header);

// Throws ImageError when rows without runs are cut short; to be called before memory is taken.
void RequireDibRows(const DibBytes& bytes, const DibHeader& header);

// Fills Width x Height pixels from a bitmap without runs.
void ReadDibRows(DibBytes& bytes, const DibHeader& header, Argb* pixels);

}  // namespace orbelle::graphics
