// The decoders behind DecodeImage, one for each format. Each takes a whole file that starts with
// the format's signature, gives 32-bit straight alpha, and throws ImageError. Each takes the size
// that the file declares from the budget before it takes memory, and decodes into the picture that
// it gives, without a second copy of it.
#pragma once

#include <cstdint>
#include <string>

#include "graphics/bitmap.h"
#include "graphics/byte_source.h"
#include "graphics/codecs/pixel_budget.h"
#include "graphics/errors.h"

namespace orbelle::graphics {

Bitmap DecodePng(const ByteSource& file, PixelBudget& budget);

// Turned upright by the orientation that a camera noted.
Bitmap DecodeJpeg(const ByteSource& file, PixelBudget& budget);

// The first frame on the logical screen, which grows where the frame reaches beyond it.
Bitmap DecodeGif(const ByteSource& file, PixelBudget& budget);

Bitmap DecodeBmp(const ByteSource& file, PixelBudget& budget);

// Throws an ImageError that says that the picture of this format ("PNG") can't be read to its end.
[[noreturn]] void ThrowDamaged(const std::string& format, const std::string& detail);

}  // namespace orbelle::graphics
