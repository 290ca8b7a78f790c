#include "formats/document_limits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "graphics/byte_source.h"
#include "graphics/errors.h"

namespace orbelle::formats {
namespace {

using document::IconLayer;
using document::Page;

// A picture that no packer shortens takes four bytes a pixel and one a row, which may have a single
// pixel; records and the like take little more.
constexpr std::int64_t kMaxRecordBytes = std::int64_t{8} << 20;
static_assert(5 * kMaxDocumentPixels + kMaxRecordBytes <
              static_cast<std::int64_t>(graphics::kMaxFileBytes));

// A plate's outline is worked out row by row.
constexpr std::int64_t kPixelsPerPlateRow = 32;

void RequireSize(const std::string& what, int width, int height) {
    if (!graphics::IsBitmapSizeAllowed(width, height))
        throw Error(what + " is too large: " + std::to_string(width) + " x " +
                    std::to_string(height) + " pixels.");
}

bool LiesOnPlane(const graphics::RectF& rect) {
    // Written so that not-a-number fails.
    const std::array numbers{rect.X, rect.Y, rect.Width, rect.Height};
    return std::ranges::all_of(numbers,
                               [](float number) { return std::abs(number) <= kMaxCoordinate; });
}

}  // namespace

std::int64_t PagePixels(const Page& page) {
    // A side below 1 is taken for 1 when the page is composed.
    return std::int64_t{std::max(page.Width, 1)} * std::max(page.Height, 1);
}

std::int64_t LayerPixels(const IconLayer& layer, const Page& page) {
    const graphics::RectI drawn = Intersect(
        document::DrawnArea(layer.Rect), {0, 0, std::max(page.Width, 1), std::max(page.Height, 1)});
    const std::int64_t picture =
        std::int64_t{std::max(layer.ImageWidth, 0)} * std::max(layer.ImageHeight, 0);
    const std::int64_t outline = layer.ClipNextLayer ? kPixelsPerPlateRow * drawn.Height : 0;
    return std::max(picture, std::int64_t{drawn.Width} * drawn.Height) + outline;
}

std::int64_t PixelsOf(const Page& page) {
    std::int64_t pixels = PagePixels(page);
    for (const IconLayer& layer : page.Layers)
        pixels += LayerPixels(layer, page);
    return pixels;
}

std::int64_t PixelsOf(const document::Family& family) {
    std::int64_t pixels = 0;
    for (const Page* page : family.Pages())
        pixels += PixelsOf(*page);
    return pixels;
}

void RequireCanBeOpened(const document::Document& document) {
    int layers = 0;
    for (const Page* page : document.Pages()) {
        RequireSize("The page", std::max(page->Width, 1), std::max(page->Height, 1));
        for (const IconLayer& layer : page->Layers) {
            if (layer.ImageWidth > 0 && layer.ImageHeight > 0)
                RequireSize("The layer", layer.ImageWidth, layer.ImageHeight);
            if (!LiesOnPlane(layer.Rect) || !LiesOnPlane(layer.BaseRect))
                throw Error("The layer lies more than 4194304 pixels away from the page.");
        }
        layers = std::max(layers, page->LayerCount());
    }
    if (layers > document::kMaxLayers)
        throw Error("The document has " + std::to_string(layers) + " layers, more than the " +
                    std::to_string(document::kMaxLayers) + " that can be opened again.");
    if (const std::int64_t pixels = PixelsOf(document); pixels > kMaxDocumentPixels)
        throw Error("The page and its layers have " + std::to_string(pixels) +
                    " pixels together, more than the " + std::to_string(kMaxDocumentPixels) +
                    " that a document can hold.");
}

}  // namespace orbelle::formats
