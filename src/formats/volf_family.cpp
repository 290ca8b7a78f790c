#include "formats/volf_family.h"

#include <algorithm>
#include <array>
#include <string>

#include "formats/volf_layout.h"
#include "graphics/checksum.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using graphics::ByteSource;
using graphics::PartOfSource;

// Nothing at `place` looks like a family: empty.
PartOfSource FindContent(const ByteSource& file, std::uint64_t place) {
    std::array<std::uint8_t, kFamilyHeadBytes> bytes{};
    const std::size_t there = file.ReadAt(place, bytes);
    if (there < kFamilyMagic.size() ||
        !std::equal(kFamilyMagic.begin(), kFamilyMagic.end(), bytes.begin()))
        return {file, place, 0};
    graphics::ByteReader head({bytes.data(), there});
    head.Take(kFamilyMagic.size());
    if (head.Read<std::uint16_t>() != kFamilyVersion)
        throw Error("a newer version has written it");
    const auto length = head.Read<std::uint32_t>();
    const auto checksum = head.Read<std::uint32_t>();
    PartOfSource content(file, place + kFamilyHeadBytes, length);
    if (content.Size() < length)
        throw Error("the file is cut short");
    if (graphics::Crc32(content) != checksum)
        throw Error("its checksum is wrong");
    return content;
}

document::SizePage ReadSize(const ByteSource& content, std::uint64_t& place,
                            PixelAllowance& allowance) {
    constexpr std::size_t kHeadBytes = 8;
    document::SizePage read{content.NumberAt<std::int32_t>(place), {}};
    const auto count = content.NumberAt<std::int32_t>(place + sizeof(std::int32_t));
    if (read.Size < document::kMinArtworkSize || read.Size > document::kMaxArtworkSize)
        throw Error("there is no size " + std::to_string(read.Size));
    document::Page& page = read.Artwork;
    page.Width = page.Height = read.Size;
    allowance.Take(PagePixels(page));
    const LayersRead layers = ReadLayers(content, place + kHeadBytes, count, allowance, page);
    if (!layers.Problems.empty())
        throw Error("size " + std::to_string(read.Size) + ", " + layers.Problems.front());
    page.SelectedLayer = page.LayerCount() - 1;
    place = layers.End;
    return read;
}

}  // namespace

FamilyRead ReadFamily(const ByteSource& file, std::uint64_t place, PixelAllowance& allowance) {
    const PartOfSource content = FindContent(file, place);
    FamilyRead read;
    std::vector<document::SizePage>& sizes = read.Sizes;
    std::uint64_t at = sizeof(std::int32_t);
    const auto count = content.NumberAt<std::int32_t>(0);
    while (static_cast<std::int64_t>(sizes.size()) < count) {
        sizes.push_back(ReadSize(content, at, allowance));
        if (sizes.size() > 1 && sizes[sizes.size() - 2].Size >= sizes.back().Size)
            throw Error("its sizes are not in order");
    }
    read.Names = ReadNames(content, at);
    return read;
}

}  // namespace orbelle::formats
