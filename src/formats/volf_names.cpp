#include "formats/volf_names.h"

#include <algorithm>
#include <array>

#include "formats/volf_layout.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

constexpr std::size_t kEntryBytes = 12;  // before the name

// More than any family of ours has.
constexpr std::int32_t kMostNames = 1 << 20;

}  // namespace

std::vector<LayerName> NamesOf(const document::Document& document) {
    std::vector<LayerName> names;
    const auto add = [&](int size, const document::Page& page) {
        for (int i = 0; i < page.LayerCount(); ++i) {
            const std::string& name = page.Layers[static_cast<std::size_t>(i)].Name;
            if (!name.empty())
                names.push_back({size, i, name});
        }
    };
    add(document::Family::kMaster, document.Master);
    for (const document::SizePage& page : document.Sizes)
        add(page.Size, page.Artwork);
    return names;
}

void AppendNames(std::vector<std::uint8_t>& file, const std::vector<LayerName>& names) {
    if (names.empty())
        return;
    file.insert(file.end(), kNamesMagic.begin(), kNamesMagic.end());
    graphics::Append<std::int32_t>(file, static_cast<std::int32_t>(names.size()));
    for (const LayerName& name : names) {
        graphics::Append<std::int32_t>(file, name.Size);
        graphics::Append<std::int32_t>(file, name.Layer);
        graphics::Append<std::int32_t>(file, static_cast<std::int32_t>(name.Name.size()));
        file.insert(file.end(), name.Name.begin(), name.Name.end());
    }
}

std::vector<LayerName> ReadNames(const graphics::ByteSource& content, std::uint64_t place) {
    std::array<std::uint8_t, kNamesMagic.size()> magic{};
    if (content.ReadAt(place, magic) < magic.size() ||
        !std::equal(magic.begin(), magic.end(), kNamesMagic.begin()))
        return {};
    place += magic.size();
    std::vector<LayerName> names;
    const std::int32_t count = std::min(content.NumberAt<std::int32_t>(place), kMostNames);
    place += sizeof count;
    for (std::int32_t i = 0; i < count; ++i) {
        LayerName entry{content.NumberAt<std::int32_t>(place),
                        content.NumberAt<std::int32_t>(place + sizeof(std::int32_t)),
                        {}};
        const auto bytes = content.NumberAt<std::int32_t>(place + 2 * sizeof(std::int32_t));
        if (bytes <= 0 || bytes > static_cast<std::int32_t>(document::kMaxLayerName))
            break;
        const auto length = static_cast<std::uint64_t>(bytes);
        if (place + kEntryBytes + length > content.Size())
            break;
        std::array<char, document::kMaxLayerName> name{};
        content.ReadAt(place + kEntryBytes, {reinterpret_cast<std::uint8_t*>(name.data()), length});
        entry.Name = document::CleanLayerName({name.data(), length});
        if (!entry.Name.empty())
            names.push_back(std::move(entry));
        place += kEntryBytes + length;
    }
    return names;
}

}  // namespace orbelle::formats
