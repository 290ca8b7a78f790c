// What zlib and gzip streams hold.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "graphics/byte_source.h"

namespace orbelle::graphics {

// The contents of the stream; nothing when they are damaged, cut short or more than `maxBytes`.
std::optional<std::vector<std::uint8_t>> Inflate(const ByteSource& stream, std::size_t maxBytes);

// The first of them, as many as `maxBytes` at most; fewer where the stream ends or is damaged.
std::vector<std::uint8_t> InflateStart(const ByteSource& stream, std::size_t maxBytes);

}  // namespace orbelle::graphics
