// Document files (.volf), written: a header, then a record with a PNG picture for each layer, then
// the artwork of sizes, if there is any.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "document/document.h"

namespace orbelle::formats {

// The layers of a document as they stand in its file: of the master from the bottom up, then of the
// artwork by rising size.
std::vector<const document::IconLayer*> LayersOf(const document::Document& document);

// The whole file as bytes, little-endian.
std::vector<std::uint8_t> EncodeDocument(const document::Document& document);

// The file without the layers' pictures: small, and quick to make. The pictures belong, in their
// order, at the places `PictureAt` of the bytes, rising.
struct DocumentFrame {
    std::vector<std::uint8_t> Bytes;
    std::vector<std::uint32_t> PictureAt;
};
DocumentFrame EncodeFrame(const document::Document& document);
// A layer's picture as the file holds it.
std::vector<std::uint8_t> EncodePicture(const document::IconLayer& layer);
// The whole file again. Throws Error when frame and pictures do not belong together.
std::vector<std::uint8_t> FillFrame(const DocumentFrame& frame,
                                    std::span<const std::vector<std::uint8_t>> pictures);

// Throws Error, with no file touched, for a document that could not be opened again
// (document_limits.h), and graphics::FileError.
void SaveDocument(const std::filesystem::path& path, const document::Document& document);

}  // namespace orbelle::formats
