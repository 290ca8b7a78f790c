#include "graphics/checksum.h"

#include <libdeflate.h>

namespace orbelle::graphics {

std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

std::uint32_t Crc32(const ByteSource& bytes) {
    ByteStream stream(bytes);
    std::uint32_t checksum = 0;
    for (auto piece = stream.NextPiece(); !piece.empty(); piece = stream.NextPiece())
        checksum = libdeflate_crc32(checksum, piece.data(), piece.size());
    return checksum;
}

}  // namespace orbelle::graphics
