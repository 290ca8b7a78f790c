// The system's clipboard: one picture and a text beside it.
#pragma once

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

}  // namespace orbelle::app
