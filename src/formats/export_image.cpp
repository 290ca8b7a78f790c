#include "formats/export_image.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <utility>

#include "formats/export_icon.h"
#include "graphics/codecs/image_files.h"
#include "graphics/drawing_context.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/path_text.h"

namespace orbelle::formats {
namespace {

namespace fs = std::filesystem;
using graphics::Argb;
using graphics::Bitmap;

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

constexpr std::pair<std::string_view, ExportFormat> kExtensions[] = {
    {".ico", ExportFormat::Ico},  {".png", ExportFormat::Png},   {".gif", ExportFormat::Gif},
    {".jpg", ExportFormat::Jpeg}, {".jpeg", ExportFormat::Jpeg}, {".bmp", ExportFormat::Bmp},
    {".cur", ExportFormat::Cur},  {".icns", ExportFormat::Icns},
};

}  // namespace

std::optional<ExportFormat> FindExportFormat(const fs::path& path) {
    std::string extension = graphics::Utf8Of(path.extension());
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return std::tolower(c); });
    const auto* found = std::ranges::find(kExtensions, extension,
                                          &std::pair<std::string_view, ExportFormat>::first);
    if (found == std::end(kExtensions))
        return std::nullopt;
    return found->second;
}

Bitmap DrawOnBackground(const Bitmap& page, Argb pageBackground) {
    return DrawOver(pageBackground, page, graphics::PixelFormat::Argb32);
}

Bitmap DrawOpaque(const Bitmap& page, Argb pageBackground) {
    Bitmap ground(page.Width(), page.Height());
    graphics::DrawingContext(ground).Clear(pageBackground);
    Bitmap surface = DrawOver(kWhite, ground, graphics::PixelFormat::Rgb24);
    graphics::DrawingContext(surface).DrawImage(page, 0, 0);
    return surface;
}

void ExportImage(const fs::path& path, ExportFormat format, const Bitmap& page, Argb pageBackground,
                 const ExportSettings& settings) {
    if (page.IsEmpty())
        throw graphics::FileError(path, "there is no page to export");
    switch (format) {
        case ExportFormat::Png:
            return graphics::WriteFile(
                path, EncodePng(DrawOnBackground(page, pageBackground), settings.Packing));
        case ExportFormat::Bmp:
            return graphics::WriteFile(path, EncodeBmp(DrawOnPaper(pageBackground, page)));
        case ExportFormat::Ico:
            return ExportIcon(path, IconKind::Windows, {page}, settings);
        case ExportFormat::Cur:
            return ExportIcon(path, IconKind::Pointer, {page}, settings);
        case ExportFormat::Icns:
            return ExportIcon(path, IconKind::MacOs, {page}, settings);
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

Bitmap DrawGifSurface(const Bitmap& page, Argb pageBackground) {
    return DrawOver(graphics::AlphaOf(pageBackground) != 0 ? pageBackground : 0, page,
                    graphics::PixelFormat::Argb32);
}

}  // namespace orbelle::formats
