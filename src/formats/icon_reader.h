// Windows icon and pointer files (.ico, .cur), read.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "formats/hotspot.h"
#include "graphics/bitmap.h"
#include "graphics/byte_source.h"

namespace orbelle::formats {

enum class IconEntryFormat { Bitmap, Png, Bad };

struct IconEntryImage {
    // In pixels, by the picture itself; of a bad one what its header tells, if that can be, else 0.
    int Width = 0;
    int Height = 0;
    int Bits = 0;  // a pixel; of a PNG its depth times its channels
    IconEntryFormat Format = IconEntryFormat::Bad;
    std::uint64_t Bytes = 0;                  // as the directory says, as far as the file has them
    std::optional<formats::Hotspot> Hotspot;  // as the directory of a pointer file says
    graphics::Bitmap Image;                   // empty when bad
    std::string Problem;                      // why it is bad

    bool IsBad() const { return Format == IconEntryFormat::Bad; }
};

// Whether the source begins like an icon or pointer file. Files of type 0, which the reader takes,
// too, are not told from others by that.
bool IsIcon(const graphics::ByteSource& file);

// Every entry, in file order, bad ones too. Bitmaps have 1, 4, 8, 16, 24 or 32 bits and no runs;
// half of the height that they tell is the picture's, for colours and mask are counted together,
// also where a writer forgot to do so. Pixels follow their own alpha, unless they have none or it
// is 0 everywhere: then those that the mask has out get alpha 0, the others 255. A mask or a
// part of it that is missing is all zero, indexes without a colour are opaque black.
//
// An entry is bad when its pixels are cut short or of another kind. So that a file takes little
// memory and time, it is bad, too, when those before it have taken what there is:
// graphics::kMaxBitmapPixels and a multiple of the file's bytes. Throws graphics::ImageError when
// the file is no icon or has no entry.
std::vector<IconEntryImage> DecodeIcon(const graphics::ByteSource& file);

// The same with a file. Throws graphics::FileError.
std::vector<IconEntryImage> ReadIconFile(const std::filesystem::path& path);

// Entry `index` of a file that DecodeIcon has read, as it stands there: of a PNG the whole PNG,
// even if the directory says less. Empty when the file has no such entry, or it has more than
// `maxBytes`: many entries may claim the whole file each.
std::vector<std::uint8_t> EntryBytes(const graphics::ByteSource& file, int index,
                                     std::uint64_t maxBytes);

// A picture that can stand for its size: good, square, of 8 to 256 pixels a side.
bool IsIconSize(const IconEntryImage& entry);

}  // namespace orbelle::formats
