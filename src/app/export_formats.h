// The Export submenu: what its entries are called, and their file dialogs' filters.
#pragma once

#include "formats/export_image.h"

namespace orbelle::app {

struct ExportEntry {
    formats::ExportFormat Format;
    const char* Caption;
    const char* Filter;  // "text|patterns"
    int Mnemonic = 0;    // the caption's letter that chooses it
};

// In the order of the menu.
inline constexpr ExportEntry kExportEntries[] = {
    {formats::ExportFormat::Ico, "ICO Windows Icon File", "Windows ICO Files (*.ICO)|*.ico"},
    {formats::ExportFormat::Icns, "ICNS macOS Icon File", "macOS Icon Files (*.ICNS)|*.icns", 2},
    {formats::ExportFormat::Cur, "CUR Windows Cursor", "Windows Cursors (*.CUR)|*.cur"},
    {formats::ExportFormat::Png, "PNG with Transparency",
     "PNG Portable Network Graphics (*.PNG)|*.png"},
    {formats::ExportFormat::Gif, "GIF Image", "GIF Files (*.GIF)|*.gif"},
    {formats::ExportFormat::Jpeg, "JPEG Image", "JPEG Files (*.JPG;*.JPEG)|*.jpg;*.jpeg"},
    {formats::ExportFormat::Bmp, "BMP Image", "BMP Windows Bitmap (*.BMP)|*.bmp"},
};

}  // namespace orbelle::app
