#include "graphics/checksum.h"

#include <libdeflate.h>

namespace orbelle::graphics {

std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
    return libdeflate_crc32(0, bytes.data(), bytes.size());
}

}  // namespace orbelle::graphics
