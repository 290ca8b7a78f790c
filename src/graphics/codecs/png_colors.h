// What the chunks of a PNG file say of its colours.
#pragma once

#include "graphics/byte_source.h"
#include "graphics/codecs/color_conversion.h"

namespace orbelle::graphics {

// By the first that is whole of iCCP, sRGB, and gAMA with cHRM; chunks behind the first pixels
// don't count. A file without any, or one that states sRGB, is left as it is.
// For a picture of so many pixels.
ColorConversion PngColors(const ByteSource& file, FileChannels channels, std::int64_t pixels);

}  // namespace orbelle::graphics
