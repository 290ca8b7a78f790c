// Export: the composed page as a picture file of another kind.
#pragma once

#include <filesystem>
#include <optional>

#include "formats/export_settings.h"
#include "graphics/bitmap.h"
#include "graphics/color.h"

namespace orbelle::formats {

enum class ExportFormat { Ico, Png, Gif, Jpeg, Bmp, Cur, Icns };

// Told by the path's extension, whatever its case: .ico, .cur, .icns, .png, .gif, .jpg or .jpeg,
// .bmp.
std::optional<ExportFormat> FindExportFormat(const std::filesystem::path& path);

// The page over its background as a PNG shows it.
graphics::Bitmap DrawOnBackground(const graphics::Bitmap& page, graphics::Argb pageBackground);

// The same over white, without alpha.
graphics::Bitmap DrawOpaque(const graphics::Bitmap& page, graphics::Argb pageBackground);

// The page over its background as a GIF is made from it: a background whose alpha is 0 counts as
// none.
graphics::Bitmap DrawGifSurface(const graphics::Bitmap& page, graphics::Argb pageBackground);

// Writes the composed page `page` to `path`, as it is: Settings::PictureSide has been seen to. PNG,
// BMP, JPEG and GIF have the background under the picture (0: transparent in PNG and GIF, white in
// the others), icons of all kinds (ExportIcon) never have.
// Throws graphics::FileError, also for an empty page; std::invalid_argument for an icon size out of
// range.
void ExportImage(const std::filesystem::path& path, ExportFormat format,
                 const graphics::Bitmap& page, graphics::Argb pageBackground,
                 const ExportSettings& settings = {});

}  // namespace orbelle::formats
