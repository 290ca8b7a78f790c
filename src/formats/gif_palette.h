// From a picture with alpha to 256 colours, one of them transparent, and to the GIF file.
#pragma once

#include <cstdint>
#include <vector>

#include "graphics/bitmap.h"
#include "graphics/indexed_bitmap.h"

namespace orbelle::formats {

// Alphas from which a pixel counts as opaque: the usual one, and the largest to choose.
inline constexpr int kUsualGifThreshold = 130;
inline constexpr int kMaxGifThreshold = 200;

// A 24-bit picture in which black stands for transparent: pixels whose alpha is below `threshold`
// become 0,0,0; of the others those with all channels below 10 become 5,5,5, the rest keep their
// colour, unblended. An empty picture stays empty.
graphics::Bitmap FlattenToKeyColor(const graphics::Bitmap& image, std::uint8_t threshold);

// The picture, alpha ignored, in at most 256 colours: exact ones when no more are in it, else means
// of the leaves of an Octree. No dithering. Palette entries beyond the colours stay zero. With
// `useTransparencyColor` the first entry whose channels are all below 5 gets alpha 0.
graphics::IndexedBitmap PaletteImageGif(const graphics::Bitmap& image, bool useTransparencyColor);

// The picture as a GIF file: with `transparentBackground` flattened at `threshold` and with its
// black transparent, else with alpha dropped. An empty picture gives no bytes. Throws ImageError
// when the encoder fails.
std::vector<std::uint8_t> EncodeGifPicture(const graphics::Bitmap& surface,
                                           bool transparentBackground, std::uint8_t threshold);

}  // namespace orbelle::formats
