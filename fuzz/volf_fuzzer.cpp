#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "document/compositor.h"
#include "formats/volf_store.h"

using namespace orbelle;

namespace {

// Larger pages only cost time: nothing in composing them depends on their size.
constexpr int kMaxComposedSide = 2048;

void Compose(document::Page& page) {
    if (page.Width > kMaxComposedSide || page.Height > kMaxComposedSide)
        return;
    document::Compositor compositor;
    graphics::Bitmap canvas;
    compositor.Compose(page, graphics::InterpolationMode::HighQuality, canvas);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    document::Document document;
    try {
        ORBELLE_READER({data, size}, document);
    } catch (const Error&) {
        // The whole layers before the damage are in the document.
    }
    Compose(document.Master);
    return 0;
}
