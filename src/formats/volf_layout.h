// What stands at the beginning of a document file, for its writer and its reader.
#pragma once

#include <cstdint>
#include <string_view>

namespace orbelle::formats {

inline constexpr std::string_view kVolfMagic = "volf ";
inline constexpr std::uint16_t kVolfFormatNumber = 1;
inline constexpr std::string_view kVolfTag = "OrbelleWork";

}  // namespace orbelle::formats
