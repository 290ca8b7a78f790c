#include "graphics/codecs/image_files.h"
#include "graphics/codecs/png_parts.h"
#include "graphics/codecs/png_rows.h"

namespace orbelle::graphics {
namespace {

// Measured on icon pictures (bench/measure_packing.py). For one's own files: smaller than with one
// filter at level 4, in less time.
constexpr int kQuickLevel = 1;
// For others': as small as usual programs make it. Level 7 takes nearly twice the time for 1.5 %.
constexpr int kExportLevel = 6;

// Without the Paeth filter: with it files are as large, and take longer to read.
constexpr PngFilter kQuickFilters[] = {PngFilter::Left, PngFilter::Above};
constexpr PngFilter kExportFilters[] = {PngFilter::None, PngFilter::Left, PngFilter::Above};

std::vector<std::uint8_t> Encode(const Bitmap& image, std::span<const PngFilter> filters,
                                 int level) {
    if (image.IsEmpty())
        return {};
    const PngRows rows = WholeRows(image);
    return AssemblePng(rows.Form, Deflate(FilterRows(rows, filters), level));
}

}  // namespace

std::vector<std::uint8_t> EncodePng(const Bitmap& image) {
    return Encode(image, kQuickFilters, kQuickLevel);
}

std::vector<std::uint8_t> EncodePng(const Bitmap& image, PngPacking packing) {
    return packing == PngPacking::Small ? EncodeSmallPng(image)
                                        : Encode(image, kExportFilters, kExportLevel);
}

}  // namespace orbelle::graphics
