// macOS icon files (.icns), written.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace orbelle::formats {

struct IcnsType {
    std::string_view Name;  // four letters
    int Side;               // pixels
};

// What an icon file of today holds, in its order; all are PNG. Several sizes are there twice, as
// themselves and as the double of half of it.
inline constexpr IcnsType kIcnsTypes[] = {
    {"icp4", 16},  {"ic11", 32},  {"icp5", 32},  {"ic12", 64},  {"ic07", 128},
    {"ic13", 256}, {"ic08", 256}, {"ic14", 512}, {"ic09", 512}, {"ic10", 1024},
};

// A picture of each type, as PNG, in the order of kIcnsTypes, behind a table of contents. Throws
// std::invalid_argument when there are not as many.
std::vector<std::uint8_t> EncodeIcns(std::span<const std::vector<std::uint8_t>> pngs);

}  // namespace orbelle::formats
