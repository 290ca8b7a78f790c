// Document files (.volf), written: a header, then a record with a PNG picture for each layer.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "document/document.h"

namespace orbelle::formats {

// The whole file as bytes, little-endian, layers from the bottom up.
std::vector<std::uint8_t> EncodeDocument(const document::Document& document);

// Throws Error, with no file touched, for a document that could not be opened again
// (document_limits.h), and graphics::FileError.
void SaveDocument(const std::filesystem::path& path, const document::Document& document);

}  // namespace orbelle::formats
