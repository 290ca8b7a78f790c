#include "formats/icns_file.h"

#include <stdexcept>

namespace orbelle::formats {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kHeadBytes = 8;

// Name and length, most significant byte first. The length counts these eight, too.
void AppendHead(Bytes& bytes, std::string_view name, std::size_t dataBytes) {
    bytes.insert(bytes.end(), name.begin(), name.end());
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>((kHeadBytes + dataBytes) >> shift));
}

}  // namespace

Bytes EncodeIcns(std::span<const Bytes> pngs) {
    if (pngs.size() != std::size(kIcnsTypes))
        throw std::invalid_argument("an icon file of macOS has a picture of each type");
    Bytes elements;
    AppendHead(elements, "TOC ", kHeadBytes * pngs.size());
    for (std::size_t i = 0; i < pngs.size(); ++i)
        AppendHead(elements, kIcnsTypes[i].Name, pngs[i].size());
    for (std::size_t i = 0; i < pngs.size(); ++i) {
        AppendHead(elements, kIcnsTypes[i].Name, pngs[i].size());
        elements.insert(elements.end(), pngs[i].begin(), pngs[i].end());
    }
    Bytes file;
    AppendHead(file, "icns", elements.size());
    file.insert(file.end(), elements.begin(), elements.end());
    return file;
}

}  // namespace orbelle::formats
