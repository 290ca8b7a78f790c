// Document files (.volf), read.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "document/document.h"
#include "formats/document_limits.h"
#include "graphics/byte_source.h"
#include "graphics/errors.h"

namespace orbelle::formats {

// The file does not begin like a document. what() is the product's text "Invalid File".
class InvalidFile : public Error {
public:
    InvalidFile();
};

// Whether the source begins like a document.
bool IsDocument(const graphics::ByteSource& file);

// What could be read of a document file.
struct LoadedDocument {
    document::Document Document;  // none selected, no path
    std::string Damage;           // what is missing; empty: nothing
};

// Adjustment sliders come back neutral, each layer's Region is built from its picture and moved to
// its place. A layer whose picture can't be decoded is left out; a record that is cut short, or
// holds what memory, the limits (document_limits.h) or `maxPixels` cannot hold, ends the reading.
// Both are damage, told layer by layer. Throws InvalidFile when the source does not begin like a
// document, and Error when the header is damaged or none of its layers could be read.
LoadedDocument DecodeDocument(const graphics::ByteSource& file,
                              std::int64_t maxPixels = kMaxDocumentPixels);

// The same with a file. Throws graphics::FileError besides; the path stands before every other
// problem, too.
LoadedDocument LoadDocument(const std::filesystem::path& path,
                            std::int64_t maxPixels = kMaxDocumentPixels);

}  // namespace orbelle::formats
