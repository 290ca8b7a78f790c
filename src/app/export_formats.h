// The Export submenu: what its entries are called, and their file dialogs' filters.
#pragma once

#include "formats/export_image.h"

namespace orbelle::app {

struct ExportEntry {
    formats::ExportFormat Format;
    const char* Caption;
    const char* Filter;  // "text|patterns"
};

// In the order of the menu.
inline constexpr ExportEntry kExportEntries[] = {
    {formats::ExportFormat::Ico, "ICO Windows Icon File", "Windows ICO Files (*.ICO)|*.ico"},
    {formats::ExportFormat::Png, "PNG with Transparency",
     "PNG Portable Network Graphics (*.PNG)|*.png"},
    {formats::ExportFormat::Gif, "GIF Image", "GIF Files (*.GIF)|*.gif"},
    {formats::ExportFormat::Jpeg, "JPEG Image", "JPEG Files (*.JPG;*.JPEG)|*.jpg;*.jpeg"},
    {formats::ExportFormat::Bmp, "BMP Image", "BMP Windows Bitmap (*.BMP)|*.bmp"},
};

}  // namespace orbelle::app
