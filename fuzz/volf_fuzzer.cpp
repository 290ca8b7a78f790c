#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "document/compositor.h"
#include "formats/volf_store.h"

namespace {

using orbelle::document::Document;
using orbelle::document::Page;

// Larger pages only cost time: nothing in composing them depends on their size.
constexpr int kMaxComposedSide = 2048;

void Compose(Page& page) {
    if (page.Width > kMaxComposedSide || page.Height > kMaxComposedSide)
        return;
    orbelle::document::Compositor compositor;
    orbelle::graphics::Bitmap canvas;
    compositor.Compose(page, orbelle::graphics::InterpolationMode::HighQuality, canvas);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Document document;
    try {
        orbelle::formats::DecodeDocument({data, size}, document);
    } catch (const orbelle::Error&) {
        // The whole layers before the damage are in the document.
    }
    Compose(document.Master);
    return 0;
}
