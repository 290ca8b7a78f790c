// The checksum of PNG, gzip and our own journals.
#pragma once

#include <cstdint>
#include <span>

namespace orbelle::graphics {

// CRC-32 (ISO 3309) of the bytes.
std::uint32_t Crc32(std::span<const std::uint8_t> bytes);

}  // namespace orbelle::graphics
