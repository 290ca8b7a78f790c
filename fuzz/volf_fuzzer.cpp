#include <cstddef>
#include <cstdint>

#include "document/compositor.h"
#include "formats/document_limits.h"
#include "formats/volf_reader.h"

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
        document = ORBELLE_READER(graphics::MemorySource({data, size})).Document;
    } catch (const Error&) {
        return 0;
    }
    // What was opened can be saved and opened again.
    formats::RequireCanBeOpened(document);
    Compose(document.Master);
    return 0;
}
