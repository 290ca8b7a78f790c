// The system's clipboard: one picture and a text beside it.
#pragma once

#include <QByteArrayList>
#include <string>

#include "app/offered_data.h"
#include "graphics/bitmap.h"

namespace orbelle::app {

// An empty picture leaves only the text.
void SetSystemClipboard(const graphics::Bitmap& picture, const std::string& text);
// May take another program to answer.
bool SystemClipboardHasPicture();
// Neither a picture nor a problem when there is none.
OfferedPicture SystemClipboardPicture();
std::string SystemClipboardText();
// Local files that a file manager has copied; none when there is a picture.
QByteArrayList SystemClipboardFiles();

}  // namespace orbelle::app
