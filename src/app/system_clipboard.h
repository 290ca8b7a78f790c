// The system's clipboard: one picture and a text beside it.
#pragma once

#include <QStringList>
#include <string>

#include "graphics/bitmap.h"

namespace orbelle::app {

// An empty picture leaves only the text.
void SetSystemClipboard(const graphics::Bitmap& picture, const std::string& text);
// May take another program to answer.
bool SystemClipboardHasPicture();
// Empty: none that can be read, or one too large for a bitmap.
graphics::Bitmap SystemClipboardPicture();
std::string SystemClipboardText();
// Local files that a file manager has copied; none when there is a picture.
QStringList SystemClipboardFiles();

}  // namespace orbelle::app
