// All files that a platform wants of an application's icon.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

#include "formats/export_settings.h"
#include "formats/size_pictures.h"
#include "graphics/color.h"

namespace orbelle::formats {

enum class IconSet { Windows, MacOs, Linux, Web, Android, Ios };

inline constexpr std::string_view kIconSetNames[] = {"windows", "macos",   "linux",
                                                     "web",     "android", "ios"};

// What a set's picture stands on: nothing, the page's background as in an exported PNG, or that
// over white so that nothing shines through.
enum class Ground { None, Page, Opaque };

struct SetPicture {
    int Side = 0;
    int IconSide = 0;  // of the icon in its middle
    formats::Ground Ground = Ground::Page;

    bool operator<(const SetPicture& other) const {
        return std::tie(Side, IconSide, Ground) <
               std::tie(other.Side, other.IconSide, other.Ground);
    }
};
struct SetIcon {
    std::vector<int> Sizes;  // of a Windows icon
};
struct SetIcns {};

struct SetFile {
    std::string Path;  // below the folder of all sets
    std::variant<SetPicture, SetIcon, SetIcns, std::string> Content;
};

// `name` is what the user calls the icon, any bytes but '/'.
std::vector<SetFile> FilesOfSet(IconSet set, const std::string& name, graphics::Argb background);

// Where such a file goes, as it is told: parted by '/' on every system.
std::filesystem::path PathInSets(const std::filesystem::path& folder, const std::string& file);

// Of the pictures that the icon fills, rising.
std::vector<int> SizesOfSet(IconSet set);

struct SetSource {
    FlatFamily Family;
    graphics::Argb Background = 0;  // the page's
    std::string Name;
};

// Sizes above the master's are enlarged.
graphics::Bitmap DrawSetPicture(const SetSource& source, const SetPicture& picture);

struct RenderedFile {
    std::string Path;
    std::vector<std::uint8_t> Bytes;
};
struct RenderedSet {
    IconSet Set;
    std::vector<RenderedFile> Files;
};

// In the order given. Throws Error for an empty page.
std::vector<RenderedSet> RenderSets(const SetSource& source, std::span<const IconSet> sets,
                                    const ExportSettings& settings);

// Below the folder, which is made. All or, with graphics::FileError, none of its files; others that
// are there stay.
void WriteSet(const std::filesystem::path& folder, const RenderedSet& set);

}  // namespace orbelle::formats
