#include "formats/icon_sets.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "formats/export_icon.h"
#include "formats/export_image.h"
#include "formats/icns_file.h"
#include "formats/set_texts.h"
#include "graphics/drawing_context.h"
#include "graphics/errors.h"
#include "graphics/parallel.h"
#include "graphics/path_text.h"
#include "graphics/staged_files.h"
#include "graphics/work_places.h"

namespace orbelle::formats {
namespace {

namespace fs = std::filesystem;
using graphics::Argb;
using graphics::Bitmap;
using Bytes = std::vector<std::uint8_t>;

constexpr int kThemeSizes[] = {16, 22, 24, 32, 48, 64, 96, 128, 256, 512};
constexpr int kFaviconLarge = 512;
// What every mask leaves is a circle of 4/5 of the picture's width.
constexpr int kMaskableIcon = 410;

struct Density {
    const char* Name;
    int Launcher;        // pixels of 48 units
    int Foreground;      // of 108 units
    int ForegroundIcon;  // of the middle 66 units; even where the picture is
};
constexpr Density kDensities[] = {{"m", 48, 108, 66},
                                  {"h", 72, 162, 98},
                                  {"xh", 96, 216, 132},
                                  {"xxh", 144, 324, 198},
                                  {"xxxh", 192, 432, 264}};

SetPicture Whole(int side, Ground ground = Ground::Page) {
    return {side, side, ground};
}

// The colour that the page's background shows over white.
Argb OpaqueGround(Argb background) {
    return DrawOpaque(Bitmap(1, 1), background).Row(0)[0];
}

std::vector<SetFile> LinuxFiles(const std::string& name) {
    std::vector<SetFile> files;
    for (const int size : kThemeSizes) {
        const std::string side = std::to_string(size);
        std::string path = "linux/hicolor/";
        path.append(side).append("x").append(side).append("/apps/").append(name).append(".png");
        files.push_back({std::move(path), Whole(size)});
    }
    return files;
}

std::vector<SetFile> WebFiles(const std::string& name, Argb background) {
    return {
        {"web/favicon.ico", SetIcon{{std::begin(kFaviconSizes), std::end(kFaviconSizes)}}},
        {"web/apple-touch-icon.png", Whole(180, Ground::Opaque)},
        {"web/icon-192.png", Whole(192)},
        {"web/icon-512.png", Whole(kFaviconLarge)},
        {"web/icon-maskable-512.png", SetPicture{kFaviconLarge, kMaskableIcon, Ground::Opaque}},
        {"web/site.webmanifest", WebManifest(name, OpaqueGround(background))},
        {"web/head.html", WebHead()},
    };
}

std::vector<SetFile> AndroidFiles(Argb background) {
    std::vector<SetFile> files;
    for (const Density& density : kDensities) {
        const std::string folder = std::string("android/mipmap-") + density.Name + "dpi/";
        files.push_back({folder + "ic_launcher.png", Whole(density.Launcher)});
        files.push_back({folder + "ic_launcher_foreground.png",
                         SetPicture{density.Foreground, density.ForegroundIcon, Ground::None}});
    }
    files.push_back({"android/mipmap-anydpi-v26/ic_launcher.xml", AdaptiveIcon()});
    files.push_back({"android/values/ic_launcher_background.xml",
                     AdaptiveBackground(OpaqueGround(background))});
    return files;
}

// A picture that several files may want.
struct Rendered {
    Bitmap Picture;
    Bytes Png;
    Bytes PngInIcon;  // empty: a bitmap
    bool NeedsPng = false;
    bool IsInIcon = false;
};
using Pictures = std::map<SetPicture, Rendered>;

// Without a background nothing is drawn under a picture.
SetPicture Resolved(SetPicture picture, Argb background) {
    if (picture.Ground == Ground::Page && background == 0)
        picture.Ground = Ground::None;
    return picture;
}

void NoteWanted(const SetFile& file, Argb background, Pictures& pictures) {
    if (const auto* picture = std::get_if<SetPicture>(&file.Content)) {
        pictures[Resolved(*picture, background)].NeedsPng = true;
    } else if (const auto* icon = std::get_if<SetIcon>(&file.Content)) {
        for (const int size : icon->Sizes)
            pictures[Whole(size, Ground::None)].IsInIcon = true;
    } else if (std::holds_alternative<SetIcns>(file.Content)) {
        for (const IcnsType& type : kIcnsTypes)
            pictures[Whole(type.Side, Ground::None)].NeedsPng = true;
    }
}

// The largest first, so that none of them is left for one thread alone at the end.
void Render(const SetSource& source, const ExportSettings& settings, Pictures& pictures) {
    std::vector<Pictures::value_type*> all;
    for (Pictures::value_type& picture : pictures)
        all.push_back(&picture);
    std::ranges::reverse(all);
    graphics::ForEachInParallel(all.size(), [&](std::size_t i) {
        Rendered& rendered = all[i]->second;
        rendered.Picture = DrawSetPicture(source, all[i]->first);
        if (rendered.NeedsPng)
            rendered.Png = EncodePng(rendered.Picture, settings.Packing);
        if (rendered.IsInIcon)
            rendered.PngInIcon =
                PngForIcon(source.Family, rendered.Picture, settings, rendered.Png);
    });
}

Bytes IconBytes(const SetIcon& icon, const ExportSettings& settings, const Pictures& pictures) {
    std::vector<Bitmap> drawn;
    std::vector<Bytes> pngs;
    for (const int size : icon.Sizes) {
        const Rendered& rendered = pictures.at(Whole(size, Ground::None));
        drawn.push_back(rendered.Picture);
        pngs.push_back(rendered.PngInIcon);
    }
    return EncodeIcon(drawn, settings.IconPictures, pngs);
}

Bytes FileBytes(const SetSource& source, const SetFile& file, const ExportSettings& settings,
                const Pictures& pictures) {
    if (const auto* picture = std::get_if<SetPicture>(&file.Content))
        return pictures.at(Resolved(*picture, source.Background)).Png;
    if (const auto* icon = std::get_if<SetIcon>(&file.Content))
        return IconBytes(*icon, settings, pictures);
    if (const auto* text = std::get_if<std::string>(&file.Content))
        return {text->begin(), text->end()};
    std::vector<Bytes> pngs;
    for (const IcnsType& type : kIcnsTypes)
        pngs.push_back(pictures.at(Whole(type.Side, Ground::None)).Png);
    return EncodeIcns(pngs);
}

}  // namespace

std::vector<SetFile> FilesOfSet(IconSet set, const std::string& name, Argb background) {
    switch (set) {
        case IconSet::Windows:
            return {{"windows/" + name + ".ico",
                     SetIcon{{std::begin(kWindowsSizes), std::end(kWindowsSizes)}}}};
        case IconSet::MacOs:
            return {{"macos/" + name + ".icns", SetIcns()}};
        case IconSet::Linux:
            return LinuxFiles(name);
        case IconSet::Web:
            return WebFiles(name, background);
        case IconSet::Android:
            return AndroidFiles(background);
        case IconSet::Ios:
            return {{"ios/AppIcon.appiconset/icon-1024.png", Whole(1024, Ground::Opaque)},
                    {"ios/AppIcon.appiconset/Contents.json", AppIconContents()}};
    }
    return {};
}

std::vector<int> SizesOfSet(IconSet set) {
    std::set<int> sizes;
    for (const SetFile& file : FilesOfSet(set, "", 0)) {
        if (const auto* icon = std::get_if<SetIcon>(&file.Content))
            sizes.insert(icon->Sizes.begin(), icon->Sizes.end());
        else if (const auto* picture = std::get_if<SetPicture>(&file.Content);
                 picture && picture->IconSide == picture->Side)
            sizes.insert(picture->Side);
        else if (std::holds_alternative<SetIcns>(file.Content))
            std::ranges::transform(kIcnsTypes, std::inserter(sizes, sizes.end()), &IcnsType::Side);
    }
    return {sizes.begin(), sizes.end()};
}

Bitmap DrawSetPicture(const SetSource& source, const SetPicture& picture) {
    Bitmap drawn = EnlargedPictureForSize(source.Family, picture.IconSide);
    if (picture.IconSide != picture.Side) {
        Bitmap surface(picture.Side, picture.Side);
        const auto margin = static_cast<float>((picture.Side - picture.IconSide) / 2);
        graphics::DrawingContext(surface).DrawImage(drawn, margin, margin);
        drawn = surface;
    }
    switch (picture.Ground) {
        case Ground::None:
            break;
        case Ground::Page:
            return DrawOnBackground(drawn, source.Background);
        case Ground::Opaque:
            return DrawOpaque(drawn, source.Background);
    }
    return drawn;
}

std::vector<RenderedSet> RenderSets(const SetSource& source, std::span<const IconSet> sets,
                                    const ExportSettings& settings) {
    if (source.Family.Master.IsEmpty())
        throw Error("there is no page to export");
    Pictures pictures;
    std::vector<RenderedSet> rendered;
    std::vector<std::vector<SetFile>> wanted;
    for (const IconSet set : sets) {
        wanted.push_back(FilesOfSet(set, source.Name, source.Background));
        for (const SetFile& file : wanted.back())
            NoteWanted(file, source.Background, pictures);
    }
    Render(source, settings, pictures);
    for (std::size_t i = 0; i < sets.size(); ++i) {
        rendered.push_back({sets[i], {}});
        for (const SetFile& file : wanted[i])
            rendered.back().Files.push_back(
                {file.Path, FileBytes(source, file, settings, pictures)});
    }
    return rendered;
}

fs::path PathInSets(const fs::path& folder, const std::string& file) {
    const char* const parted = folder.has_filename() ? "/" : "";
    return graphics::PathOfUtf8(graphics::Utf8Of(folder) + parted + file);
}

void WriteSet(const fs::path& folder, const RenderedSet& set) {
    std::vector<fs::path> paths;
    for (const RenderedFile& file : set.Files)
        paths.push_back(PathInSets(folder, file.Path));
    const graphics::WorkBreak untilOnDisk;
    graphics::StagedFiles staged(paths);
    graphics::ForEachInParallel(paths.size(),
                                [&](std::size_t i) { staged.Stage(i, set.Files[i].Bytes); });
    staged.Commit();
}

}  // namespace orbelle::formats
