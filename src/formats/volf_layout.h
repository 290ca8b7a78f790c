// What stands in a document file, for its writer and its reader (docs/volf-format.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orbelle::formats {

inline constexpr std::string_view kVolfMagic = "volf ";
inline constexpr std::uint16_t kVolfFormatNumber = 1;
inline constexpr std::string_view kVolfTag = "OrbelleWork";

inline constexpr std::size_t kVolfHeaderBytes = 34;
inline constexpr std::size_t kVolfLayerCountAt = 30;
inline constexpr std::size_t kVolfLayerBytes = 76;  // before the picture, whose length is the last
inline constexpr std::size_t kVolfLengthBytes = 4;

// The artwork of sizes, behind the master's layers: this head, then its content.
inline constexpr std::string_view kFamilyMagic = "OrbelleSizes";
inline constexpr std::uint16_t kFamilyVersion = 1;
inline constexpr std::size_t kFamilyHeadBytes = 22;   // magic, version, length, checksum
inline constexpr std::size_t kFamilyLengthAt = 14;    // of the content
inline constexpr std::size_t kFamilyChecksumAt = 18;  // CRC-32 of the content

// The names of layers, behind the last size in that content.
inline constexpr std::string_view kNamesMagic = "OrbelleNames";

}  // namespace orbelle::formats
