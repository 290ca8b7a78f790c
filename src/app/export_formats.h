// The Export submenu: what its entries are called, and their file dialogs' filters.
#pragma once

#include <QtGlobal>

#include "formats/export_image.h"

namespace orbelle::app {

struct ExportEntry {
    formats::ExportFormat Format;
    const char* Kind;      // the format's name
    const char* Caption;   // '&' marks the mnemonic
    const char* FileText;  // of the file dialog's filter
    const char* Patterns;
};

// In the order of the menu.
inline constexpr ExportEntry kExportEntries[] = {
    {formats::ExportFormat::Ico, "ICO", QT_TRANSLATE_NOOP("Words", "&ICO Windows Icon File"),
     QT_TRANSLATE_NOOP("Words", "Windows ICO Files (*.ICO)"), "*.ico"},
    {formats::ExportFormat::Icns, "ICNS", QT_TRANSLATE_NOOP("Words", "IC&NS macOS Icon File"),
     QT_TRANSLATE_NOOP("Words", "macOS Icon Files (*.ICNS)"), "*.icns"},
    {formats::ExportFormat::Cur, "CUR", QT_TRANSLATE_NOOP("Words", "&CUR Windows Cursor"),
     QT_TRANSLATE_NOOP("Words", "Windows Cursors (*.CUR)"), "*.cur"},
    {formats::ExportFormat::Png, "PNG", QT_TRANSLATE_NOOP("Words", "&PNG with Transparency"),
     QT_TRANSLATE_NOOP("Words", "PNG Portable Network Graphics (*.PNG)"), "*.png"},
    {formats::ExportFormat::Gif, "GIF", QT_TRANSLATE_NOOP("Words", "&GIF Image"),
     QT_TRANSLATE_NOOP("Words", "GIF Files (*.GIF)"), "*.gif"},
    {formats::ExportFormat::Jpeg, "JPEG", QT_TRANSLATE_NOOP("Words", "&JPEG Image"),
     QT_TRANSLATE_NOOP("Words", "JPEG Files (*.JPG;*.JPEG)"), "*.jpg;*.jpeg"},
    {formats::ExportFormat::Bmp, "BMP", QT_TRANSLATE_NOOP("Words", "&BMP Image"),
     QT_TRANSLATE_NOOP("Words", "BMP Windows Bitmap (*.BMP)"), "*.bmp"},
};

}  // namespace orbelle::app
