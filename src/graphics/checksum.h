// The checksum of PNG, gzip and our own journals.
#pragma once

#include <cstdint>
#include <span>

#include "graphics/byte_source.h"

namespace orbelle::graphics {

// CRC-32 (ISO 3309) of the bytes.
std::uint32_t Crc32(std::span<const std::uint8_t> bytes);
std::uint32_t Crc32(const ByteSource& bytes);

}  // namespace orbelle::graphics
