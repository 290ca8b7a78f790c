// The decoders behind DecodeImage, one for each format. Each takes a whole file that starts with
// the format's signature, gives 32-bit straight alpha, and throws ImageError. Each takes the size
// that the file declares from the budget before it takes memory, and decodes into the picture that
// it gives; beside it stand at most 40 MiB of a PNG. Colours that the file states otherwise become
// sRGB.
#pragma once

#include <cstdint>
#include <string>

#include "graphics/bitmap.h"
#include "graphics/byte_source.h"
#include "graphics/codecs/pixel_budget.h"
#include "graphics/errors.h"

namespace orbelle::graphics {

// What becomes of a file's word on its colours: sRGB is made, or its numbers are the pixels.
enum class ColorHandling { ToSrgb, Keep };

Bitmap DecodePng(const ByteSource& file, PixelBudget& budget,
                 ColorHandling colors = ColorHandling::ToSrgb);

// Turned upright by the orientation that a camera noted.
Bitmap DecodeJpeg(const ByteSource& file, PixelBudget& budget,
                  ColorHandling colors = ColorHandling::ToSrgb);

// The first frame on the logical screen, which grows where the frame reaches beyond it.
Bitmap DecodeGif(const ByteSource& file, PixelBudget& budget);

Bitmap DecodeBmp(const ByteSource& file, PixelBudget& budget);

// Lossy and lossless; of an animation the first frame on its canvas.
Bitmap DecodeWebp(const ByteSource& file, PixelBudget& budget);

// Drawn so that its longer side has so many pixels, 1 to 1024. Nothing outside of the document is
// read. Throws when it has more than 8 MiB or takes more than 5 seconds or 512 MiB.
Bitmap DecodeSvg(const ByteSource& file, PixelBudget& budget, int side);

// Throws an ImageError that says that the picture of this format ("PNG") can't be read to its end.
[[noreturn]] void ThrowDamaged(const std::string& format, const std::string& detail);

}  // namespace orbelle::graphics
