// What a document may be, so that the file it is saved to can be opened again.
//
// An open document takes 4 bytes for each pixel of its page (the composed page), 4 bytes and a bit
// for each pixel of its layers' pictures (the bit is the layer's region, filters/create_region.h),
// and next to nothing for its file, which is read piece by piece. 100 Mi pixels are 400 MiB, 12 MiB
// of regions, and leave 65 MiB of 500 million bytes for the program itself with its window. Two
// pictures as large as a bitmap can be, a page and its only layer, fit.
#pragma once

#include <cstdint>

#include "document/document.h"

namespace orbelle::formats {

// Of all pages and their layers together.
inline constexpr std::int64_t kMaxDocumentPixels = std::int64_t{100} << 20;

// Regions know no pixel farther out.
inline constexpr float kMaxCoordinate = 4194304;

// What a page without layers counts for.
std::int64_t PagePixels(const document::Page& page);

// What a layer counts for: the pixels of its picture as they are saved, or those of the page that
// it is drawn over, which also take their time, where these are more; and something for the outline
// of a plate.
std::int64_t LayerPixels(const document::IconLayer& layer, const document::Page& page);

// All of a page, and of all pages.
std::int64_t PixelsOf(const document::Page& page);
std::int64_t PixelsOf(const document::Family& family);

// Throws Error, which names the number that is too large, unless DecodeDocument reads all of what
// EncodeDocument makes of the document.
void RequireCanBeOpened(const document::Document& document);

}  // namespace orbelle::formats
