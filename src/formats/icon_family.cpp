#include "formats/icon_family.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "document/compositor.h"
#include "document/layer_slots.h"
#include "formats/icon_reader.h"
#include "graphics/errors.h"

namespace orbelle::formats {
namespace {

using document::Document;
using document::OpenedIcon;

constexpr int kMostTold = 10;
// Of all PNG images together; what is over is written anew.
constexpr std::uint64_t kMostKeptBytes = std::uint64_t{64} << 20;

std::string ReasonAgainst(const IconEntryImage& image) {
    if (image.IsBad())
        return image.Problem;
    return std::to_string(image.Width) + " x " + std::to_string(image.Height) + " pixels";
}

std::string DescribeLeftOut(const std::vector<IconEntryImage>& images) {
    std::string text;
    int leftOut = 0;
    for (std::size_t i = 0; i < images.size(); ++i) {
        if (!IsIconSize(images[i]) && ++leftOut <= kMostTold)
            text += (text.empty() ? "" : "; ") + ("image " + std::to_string(i)) + ": " +
                    ReasonAgainst(images[i]);
    }
    if (leftOut > kMostTold)
        text += "; and " + std::to_string(leftOut - kMostTold) + " more";
    return text;
}

// The place in the file of the image that stands for each size.
std::map<int, int> ImagesBySize(const std::vector<IconEntryImage>& images) {
    std::map<int, int> chosen;
    for (int i = 0; i < static_cast<int>(images.size()); ++i) {
        const IconEntryImage& image = images[static_cast<std::size_t>(i)];
        if (!IsIconSize(image))
            continue;
        const auto [known, isFirst] = chosen.try_emplace(image.Width, i);
        if (!isFirst && images[static_cast<std::size_t>(known->second)].Bits < image.Bits)
            known->second = i;
    }
    return chosen;
}

}  // namespace

IconFamily LoadIconFamily(const std::filesystem::path& path) {
    const graphics::FileSource file(path);
    std::vector<IconEntryImage> images;
    try {
        images = DecodeIcon(file);
    } catch (const graphics::ImageError& error) {
        file.RequireWasRead();
        throw graphics::FileError(path, error.what());
    }
    file.RequireWasRead();
    const std::map<int, int> chosen = ImagesBySize(images);
    const std::string leftOut = DescribeLeftOut(images);
    if (chosen.empty())
        throw graphics::FileError(
            path, "the icon has no square image of 8 to 256 pixels that can be read: " + leftOut);

    Document document;
    document.Source = path;
    OpenedIcon icon;
    std::optional<Hotspot> hotspot;
    std::uint64_t room = kMostKeptBytes;
    const int largest = chosen.rbegin()->first;
    for (const auto& [size, place] : chosen) {
        const IconEntryImage& image = images[static_cast<std::size_t>(place)];
        document::Page page = document::MakePicturePage(image.Image);
        OpenedIcon::Entry entry{size, document::Flatten(page), {}};
        if (image.Format == IconEntryFormat::Png)
            entry.Png = EntryBytes(file, place, room);
        room -= entry.Png.size();
        icon.Entries.push_back(std::move(entry));
        if (size == largest) {
            document.Master = std::move(page);
            hotspot = image.Hotspot;
        } else {
            document.SetArtwork(size, std::move(page));
        }
    }
    file.RequireWasRead();
    std::ranges::sort(icon.Entries, {},
                      [&](const OpenedIcon::Entry& entry) { return chosen.at(entry.Size); });
    document.Icon = std::make_shared<const OpenedIcon>(std::move(icon));
    return {std::move(document), leftOut, hotspot};
}

}  // namespace orbelle::formats
