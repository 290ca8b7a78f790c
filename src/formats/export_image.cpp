#include "formats/export_image.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "graphics/codecs/image_files.h"
#include "graphics/drawing_context.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"

namespace orbelle::formats {
namespace {

namespace fs = std::filesystem;
using graphics::Argb;
using graphics::Bitmap;

constexpr int kIconSides[] = {256, 128, 64, 48, 32, 24, 16};
constexpr Argb kWhite = 0xFFFFFFFF;
constexpr int kJpegQuality = 99;

// The page over a colour, in a surface of its own.
Bitmap DrawOver(Argb background, const Bitmap& page, graphics::PixelFormat format) {
    Bitmap surface(page.Width(), page.Height(), format);
    graphics::DrawingContext context(surface);
    context.Clear(background);
    context.DrawImage(page, 0, 0);
    return surface;
}

// For formats without alpha: the page over its background, or over white when it has none.
Bitmap DrawOnPaper(Argb pageBackground, const Bitmap& page) {
    return DrawOver(pageBackground != 0 ? pageBackground : kWhite, page,
                    graphics::PixelFormat::Rgb24);
}

void LeaveInSizesFolder(const std::vector<Bitmap>& pictures) {
    const fs::path folder = SizesFolder();
    if (folder.empty())
        return;
    fs::create_directories(folder);
    for (const Bitmap& picture : pictures) {
        const std::string name = "temp" + std::to_string(picture.Width()) + ".png";
        graphics::WriteScratchFile(folder / name, graphics::EncodePng(picture));
    }
}

constexpr std::pair<std::string_view, ExportFormat> kExtensions[] = {
    {".ico", ExportFormat::Ico},  {".png", ExportFormat::Png},   {".gif", ExportFormat::Gif},
    {".jpg", ExportFormat::Jpeg}, {".jpeg", ExportFormat::Jpeg}, {".bmp", ExportFormat::Bmp},
};

}  // namespace

std::optional<ExportFormat> FindExportFormat(const fs::path& path) {
    std::string extension = path.extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return std::tolower(c); });
    const auto* found = std::ranges::find(kExtensions, extension,
                                          &std::pair<std::string_view, ExportFormat>::first);
    if (found == std::end(kExtensions))
        return std::nullopt;
    return found->second;
}

std::vector<int> IconSizesFor(int pageWidth, int pageHeight) {
    const int side = std::max(pageWidth, pageHeight);
    const auto* largest =
        std::ranges::find_if(kIconSides, [side](int size) { return size <= side; });
    return {largest, std::end(kIconSides)};
}

void ExportImage(const fs::path& path, ExportFormat format, const Bitmap& page, Argb pageBackground,
                 const ExportSettings& settings) {
    if (page.IsEmpty())
        throw graphics::FileError(path, "there is no page to export");
    switch (format) {
        case ExportFormat::Png:
            return graphics::WriteFile(
                path, EncodePng(DrawOver(pageBackground, page, graphics::PixelFormat::Argb32)));
        case ExportFormat::Bmp:
            return graphics::WriteFile(path, EncodeBmp(DrawOnPaper(pageBackground, page)));
        case ExportFormat::Ico:
            return ExportIcon(path, {page, {}}, settings);
        case ExportFormat::Gif:
            // Only a background of exactly 0 makes a transparent entry; alpha 0 with other bits
            // does not (docs/oddities.md, "GIF backgrounds").
            return graphics::WriteFile(
                path, EncodeGifPicture(DrawGifSurface(page, pageBackground), pageBackground == 0,
                                       static_cast<std::uint8_t>(settings.GifThreshold)));
        case ExportFormat::Jpeg:
            return graphics::WriteFile(path,
                                       EncodeJpeg(DrawOnPaper(pageBackground, page), kJpegQuality));
    }
}

void ExportIcon(const fs::path& path, const FlatFamily& family, const ExportSettings& settings) {
    const std::vector<int> sizes = settings.IconSizes.empty()
                                       ? IconSizesFor(family.Master.Width(), family.Master.Height())
                                       : settings.IconSizes;
    if (sizes.empty())
        return;
    std::vector<Bitmap> pictures;
    std::vector<std::vector<std::uint8_t>> pngs;
    for (int size : sizes) {
        pictures.push_back(PictureForSize(family, size));
        if (settings.IconPictures != IconFormat::Bmp)
            pngs.push_back(UntouchedPng(family, pictures.back()));
    }
    graphics::WriteFile(path, EncodeIcon(pictures, settings.IconPictures, pngs));
    if (!settings.LeavesScratchPictures)
        return;
    try {
        LeaveInSizesFolder(pictures);
    } catch (const std::exception&) {
        // Nobody needs these pictures, and the icon is written.
    }
}

Bitmap DrawGifSurface(const Bitmap& page, Argb pageBackground) {
    return DrawOver(graphics::AlphaOf(pageBackground) != 0 ? pageBackground : 0, page,
                    graphics::PixelFormat::Argb32);
}

fs::path SizesFolder() {
#ifdef _WIN32
    const wchar_t* folder = _wgetenv(L"LOCALAPPDATA");
    return folder ? fs::path(folder) / "Sizes" : fs::path();
#else
    // A relative cache folder counts as none.
    const char* cache = std::getenv("XDG_CACHE_HOME");
    if (cache && fs::path(cache).is_absolute())
        return fs::path(cache) / "Sizes";
    const char* home = std::getenv("HOME");
    return home && fs::path(home).is_absolute() ? fs::path(home) / ".cache" / "Sizes" : fs::path();
#endif
}

}  // namespace orbelle::formats
