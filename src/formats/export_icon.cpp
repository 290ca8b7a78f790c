#include "formats/export_icon.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <map>
#include <numeric>
#include <string>
#include <utility>

#include "filters/shrink_to_size.h"
#include "formats/icns_file.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/parallel.h"
#include "graphics/path_text.h"
#include "graphics/user_folders.h"

namespace orbelle::formats {
namespace {

namespace fs = std::filesystem;
using graphics::Bitmap;
using Bytes = std::vector<std::uint8_t>;

constexpr int kIconSides[] = {256, 128, 64, 48, 32, 24, 16};

void LeaveInSizesFolder(const std::vector<Bitmap>& pictures) {
    const fs::path folder = SizesFolder();
    if (folder.empty())
        return;
    fs::create_directories(folder);
    for (const Bitmap& picture : pictures) {
        const std::string name = "temp" + std::to_string(picture.Width()) + ".png";
        graphics::WriteScratchFile(folder / graphics::PathOfUtf8(name),
                                   graphics::EncodePng(picture));
    }
}

// Those that take long are begun first, so that none of them is left for one thread alone.
std::vector<std::size_t> LargestFirst(const std::vector<int>& sizes) {
    std::vector<std::size_t> order(sizes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, std::greater<>(), [&](std::size_t i) { return sizes[i]; });
    return order;
}

void ExportIcns(const fs::path& path, const FlatFamily& family, const ExportSettings& settings) {
    // Sizes that are there twice are made once. The largest come first: they take most of the time.
    std::map<int, Bytes, std::greater<>> pngOfSide;
    for (const IcnsType& type : kIcnsTypes)
        pngOfSide[type.Side];
    std::vector<std::pair<const int, Bytes>*> sides;
    sides.reserve(pngOfSide.size());
    for (auto& side : pngOfSide)
        sides.push_back(&side);
    graphics::ForEachInParallel(sides.size(), [&](std::size_t i) {
        auto& [side, png] = *sides[i];
        png = EncodePng(EnlargedPictureForSize(family, side), settings.Packing);
    });
    std::vector<Bytes> pngs;
    for (const IcnsType& type : kIcnsTypes)
        pngs.push_back(pngOfSide[type.Side]);
    graphics::WriteFile(path, EncodeIcns(pngs));
}

}  // namespace

std::vector<int> IconSizesFor(int pageWidth, int pageHeight) {
    const int side = std::max(pageWidth, pageHeight);
    const auto* largest =
        std::ranges::find_if(kIconSides, [side](int size) { return size <= side; });
    return {largest, std::end(kIconSides)};
}

Hotspot HotspotForSize(const Bitmap& master, Hotspot hotspot, int size) {
    if (!master.GetPixel(hotspot.X, hotspot.Y))
        throw Error("the hot spot " + std::to_string(hotspot.X) + ", " + std::to_string(hotspot.Y) +
                    " lies outside the page");
    const int longer = std::max(master.Width(), master.Height());
    const int side = std::min(size, longer);
    const graphics::RectF place = filters::PlaceOfShrunk(master.Width(), master.Height(), size);
    return {std::min(static_cast<int>(place.X) + hotspot.X * side / longer, size - 1),
            std::min(static_cast<int>(place.Y) + hotspot.Y * side / longer, size - 1)};
}

Bytes PngForIcon(const FlatFamily& family, const Bitmap& picture, const ExportSettings& settings,
                 Bytes packed) {
    if (settings.IconPictures == IconFormat::Bmp)
        return {};
    // An untouched one stays as it is, unless it is to be smaller.
    Bytes untouched = UntouchedPng(family, picture);
    const bool isFast = settings.Packing == graphics::PngPacking::Fast;
    if (untouched.empty() ? !StandsAsPng(picture, settings.IconPictures) : isFast)
        return untouched;
    if (packed.empty())
        packed = EncodePng(picture, settings.Packing);
    return untouched.empty() || packed.size() < untouched.size() ? packed : untouched;
}

void ExportIcon(const fs::path& path, IconKind kind, const FlatFamily& family,
                const ExportSettings& settings) {
    if (kind == IconKind::MacOs)
        return ExportIcns(path, family, settings);
    const bool isListed = settings.IconSizes && !settings.IconSizes->empty();
    const std::vector<int> sizes =
        isListed ? *settings.IconSizes
                 : IconSizesFor(family.Master.Width(), family.Master.Height());
    if (sizes.empty())
        return;
    std::vector<Hotspot> hotspots;
    for (int size : sizes) {
        if (kind == IconKind::Pointer)
            hotspots.push_back(HotspotForSize(family.Master, settings.PointerHotspot, size));
    }
    std::vector<Bitmap> pictures(sizes.size());
    std::vector<Bytes> pngs(sizes.size());
    const std::vector<std::size_t> order = LargestFirst(sizes);
    graphics::ForEachInParallel(order.size(), [&](std::size_t turn) {
        const std::size_t i = order[turn];
        pictures[i] = PictureForSize(family, sizes[i]);
        pngs[i] = PngForIcon(family, pictures[i], settings);
    });
    graphics::WriteFile(path, EncodeIcon(pictures, settings.IconPictures, pngs, hotspots));
    if (!settings.LeavesScratchPictures)
        return;
    try {
        LeaveInSizesFolder(pictures);
    } catch (const std::exception&) {
        // Nobody needs these pictures, and the icon is written.
    }
}

fs::path SizesFolder() {
    const fs::path cache = graphics::CacheHome();
    return cache.empty() ? cache : cache / u8"Sizes";
}

}  // namespace orbelle::formats
