// The layers of one page in a document file, read.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/page.h"
#include "formats/document_limits.h"
#include "graphics/byte_source.h"

namespace orbelle::formats {

// How many pixels a document that is being read may still have.
class PixelAllowance {
public:
    explicit PixelAllowance(std::int64_t pixels = kMaxDocumentPixels) : left_(pixels) {}
    // Throws Error when there are not so many.
    void Take(std::int64_t pixels);
    std::int64_t Left() const { return left_; }

private:
    std::int64_t left_;
};

struct LayersRead {
    std::uint64_t End = 0;              // in the file, behind the last layer that was read
    bool IsComplete = true;             // as many records as there should be
    std::vector<std::string> Problems;  // "layer N: " and what is wrong with it
    std::vector<int> Places;            // of the page's layers among those in the file
};

// Reads `count` layers from `place` on to the page, which has its size already. A layer whose
// picture can't be decoded is left out; a record that is cut short, or holds what memory or the
// limits cannot hold, ends the reading.
LayersRead ReadLayers(const graphics::ByteSource& file, std::uint64_t place, std::int32_t count,
                      PixelAllowance& allowance, document::Page& page);

}  // namespace orbelle::formats
