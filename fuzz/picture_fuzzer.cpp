// ORBELLE_READER is one of the readers of pictures.
#include <cstddef>
#include <cstdint>
#include <span>

#include "formats/icon_reader.h"
#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/image_files.h"

using namespace orbelle;

[[maybe_unused]] static void DecodeOfferedIcons(std::span<const std::uint8_t> bytes) {
    formats::OfferedEntries(formats::DecodeIcon(bytes));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        ORBELLE_READER({data, size});
    } catch (const graphics::ImageError&) {
    }
    return 0;
}
