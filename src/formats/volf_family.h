// The artwork of sizes in a document file, read.
#pragma once

#include <cstdint>
#include <vector>

#include "document/family.h"
#include "formats/volf_layers.h"
#include "graphics/byte_source.h"

namespace orbelle::formats {

// What stands at `place`, behind the master's layers; nothing when something else stands there.
// The top layer of each page is selected. All or nothing: throws Error when any of it is damaged,
// too large or was written by a newer version.
std::vector<document::SizePage> ReadFamily(const graphics::ByteSource& file, std::uint64_t place,
                                           PixelAllowance& allowance);

}  // namespace orbelle::formats
