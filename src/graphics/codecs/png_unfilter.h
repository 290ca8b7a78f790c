// PNG rows that become pixels.
#pragma once

#include <cstdint>
#include <span>

#include "graphics/bitmap.h"

namespace orbelle::graphics {

inline constexpr std::uint8_t kLastPngFilter = 4;

// Fills a row from that many filtered pixels, RGBA or RGB; behind the last one stands a byte that
// may be read. `above` is the row above, zeros above the first.
void RestoreRow(std::uint8_t filter, const std::uint8_t* bytes, bool hasAlpha, std::span<Argb> row,
                const Argb* above);

}  // namespace orbelle::graphics
