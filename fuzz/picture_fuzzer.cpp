#include <cstddef>
#include <cstdint>

#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/image_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        orbelle::graphics::DecodePng({data, size});
    } catch (const orbelle::graphics::ImageError&) {
    }
    return 0;
}
