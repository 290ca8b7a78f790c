// The artwork of sizes in a document file, read.
#pragma once

#include <cstdint>
#include <vector>

#include "document/family.h"
#include "formats/volf_layers.h"
#include "formats/volf_names.h"
#include "graphics/byte_source.h"

namespace orbelle::formats {

struct FamilyRead {
    std::vector<document::SizePage> Sizes;
    std::vector<LayerName> Names;  // of the layers of all pages, the master's too
};

// What stands at `place`, behind the master's layers; nothing when something else stands there.
// The top layer of each page is selected. All or nothing: throws Error when any of it is damaged,
// too large or was written by a newer version.
FamilyRead ReadFamily(const graphics::ByteSource& file, std::uint64_t place,
                      PixelAllowance& allowance);

}  // namespace orbelle::formats
