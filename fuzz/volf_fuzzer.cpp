#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "document/compositor.h"
#include "formats/document_limits.h"
#include "formats/volf_layout.h"
#include "formats/volf_reader.h"
#include "graphics/checksum.h"

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

// No mutation would hit the checksum of the sizes.
std::vector<std::uint8_t> WithChecksum(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint8_t> file(data, data + size);
    const auto family = std::search(file.begin(), file.end(), formats::kFamilyMagic.begin(),
                                    formats::kFamilyMagic.end());
    const auto place = static_cast<std::size_t>(family - file.begin());
    if (file.size() - place < formats::kFamilyHeadBytes)
        return file;
    const auto content = std::span(file).subspan(place + formats::kFamilyHeadBytes);
    const auto put = [&](std::size_t at, std::uint32_t number) {
        std::memcpy(file.data() + place + at, &number, sizeof number);
    };
    put(formats::kFamilyLengthAt, static_cast<std::uint32_t>(content.size()));
    put(formats::kFamilyChecksumAt, graphics::Crc32(content));
    return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    document::Document document;
    try {
        document = ORBELLE_READER(graphics::MemorySource(WithChecksum(data, size))).Document;
    } catch (const Error&) {
        return 0;
    }
    // What was opened can be saved and opened again.
    formats::RequireCanBeOpened(document);
    Compose(document.Master);
    for (document::SizePage& page : document.Sizes)
        Compose(page.Artwork);
    return 0;
}
