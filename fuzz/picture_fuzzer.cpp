// ORBELLE_READER is one of the readers of pictures.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "formats/icon_reader.h"
#include "graphics/codecs/color_conversion.h"
#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/image_files.h"

using namespace orbelle;

namespace {

using graphics::ByteSource;

// What is good has pixels and the size that it tells, and stands in the file.
[[maybe_unused]] void DecodeIconEntries(const ByteSource& file, graphics::PixelBudget&) {
    const std::vector<formats::IconEntryImage> images = formats::DecodeIcon(file);
    for (std::size_t i = 0; i < images.size(); ++i) {
        const formats::IconEntryImage& image = images[i];
        if (image.IsBad() != image.Image.IsEmpty() || image.IsBad() == image.Problem.empty())
            std::abort();
        if (!image.IsBad() &&
            (image.Image.Width() != image.Width || image.Image.Height() != image.Height))
            std::abort();
        if (image.Format == formats::IconEntryFormat::Png &&
            formats::EntryBytes(file, static_cast<int>(i), file.Size()).size() < image.Bytes)
            std::abort();
    }
}

[[maybe_unused]] void DecodeDrawing(const ByteSource& file, graphics::PixelBudget& budget) {
    if (graphics::IsSvg(file))
        graphics::DecodeSvg(file, budget, 32);
}

// The whole input is a profile.
[[maybe_unused]] void ConvertColors(const ByteSource& file, graphics::PixelBudget&) {
    std::vector<std::uint8_t> profile(file.Size());
    file.ReadAt(0, profile);
    for (const auto channels : {graphics::FileChannels::Gray, graphics::FileChannels::Rgb,
                                graphics::FileChannels::Paper}) {
        graphics::Argb pixels[] = {0, 0xFFFFFFFF, 0x80402010, 0xFF0080FF};
        if (const auto colors = graphics::ColorConversion::OfProfile(profile, channels, 1))
            colors->Convert(pixels, std::size(pixels));
    }
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
