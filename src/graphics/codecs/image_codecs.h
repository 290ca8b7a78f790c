// The decoders behind DecodeImage, one for each format. Each takes a whole file that starts with
// the format's signature, gives 32-bit straight alpha, and throws ImageError.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "graphics/bitmap.h"

namespace orbelle::graphics {

Bitmap DecodePng(std::span<const std::uint8_t> bytes);

// Turned upright by the orientation that a camera noted.
Bitmap DecodeJpeg(std::span<const std::uint8_t> bytes);

// The first frame on the logical screen, which grows where the frame reaches beyond it.
Bitmap DecodeGif(std::span<const std::uint8_t> bytes);

Bitmap DecodeBmp(std::span<const std::uint8_t> bytes);

// Throws an ImageError that names the declared size unless a bitmap can have it.
void CheckDeclaredSize(std::int64_t width, std::int64_t height);

// Throws an ImageError that says that the picture of this format ("PNG") can't be read to its end.
[[noreturn]] void ThrowDamaged(const std::string& format, const std::string& detail);

}  // namespace orbelle::graphics
