// Document files (.volf): a header, then a record with a PNG picture for each layer.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "document/document.h"
#include "graphics/errors.h"

namespace orbelle::formats {

// The file does not begin like a document. what() is the product's text "Invalid File".
class InvalidFile : public Error {
public:
    InvalidFile();
};

// The whole file as bytes, little-endian, layers from the bottom up.
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

// Replaces page size, background and layers of `document` with what the bytes hold, none selected.
// Adjustment sliders come back neutral, each layer's Region is built from its picture and moved to
// its place; a picture that can't be decoded comes back transparent.
// Throws InvalidFile with nothing changed when the bytes do not begin like a document, and
// Error when they are cut short or hold what memory or the limits cannot hold: with
// nothing changed when that shows in the header, else with all whole layers before it in place.
void DecodeDocument(std::span<const std::uint8_t> bytes, document::Document& document);

// The same with a file. Throw graphics::FileError besides; Load puts the path before the problem of
// a damaged file.
void SaveDocument(const std::filesystem::path& path, const document::Document& document);
void LoadDocument(const std::filesystem::path& path, document::Document& document);

}  // namespace orbelle::formats
