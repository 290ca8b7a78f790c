// The names of layers in a document file. They stand behind the sizes, in the same block, where
// readers that know nothing of them stop.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/document.h"
#include "graphics/byte_source.h"

namespace orbelle::formats {

struct LayerName {
    int Size = document::Family::kMaster;  // the page
    int Layer = 0;                         // as the file counts them, from the bottom
    std::string Name;
};

// Of all pages; none where no layer has a name.
std::vector<LayerName> NamesOf(const document::Document& document);

void AppendNames(std::vector<std::uint8_t>& file, const std::vector<LayerName>& names);

// What stands at `place`; nothing where something else does. Names are clean, and empty ones left
// out; the reading ends where an entry is no name.
std::vector<LayerName> ReadNames(const graphics::ByteSource& content, std::uint64_t place);

}  // namespace orbelle::formats
