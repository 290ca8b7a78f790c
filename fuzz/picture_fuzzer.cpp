// ORBELLE_READER is one of the readers of pictures.
#include <cstddef>
#include <cstdint>

#include "formats/icon_reader.h"
#include "graphics/codecs/image_codecs.h"

using namespace orbelle;

namespace {

using graphics::ByteSource;

[[maybe_unused]] void DecodeOfferedIcons(const ByteSource& file, graphics::PixelBudget&) {
    formats::OfferedEntries(formats::DecodeIcon(file));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        graphics::PixelBudget budget;
        ORBELLE_READER(graphics::MemorySource({data, size}), budget);
    } catch (const graphics::ImageError&) {
    }
    return 0;
}
