#include <cstddef>
#include <cstdint>

#include "formats/icon_reader.h"
#include "graphics/codecs/image_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        orbelle::formats::OfferedEntries(orbelle::formats::DecodeIcon({data, size}));
    } catch (const orbelle::graphics::ImageError&) {
    }
    return 0;
}
