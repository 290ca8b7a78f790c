#include "graphics/codecs/image_files.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "graphics/codecs/image_codecs.h"
#include "graphics/file_io.h"

namespace orbelle::graphics {
namespace {

struct Format {
    std::string_view Signature;
    Bitmap (*Decode)(std::span<const std::uint8_t>);
};

constexpr Format kFormats[] = {
    {"\x89PNG\r\n\x1A\n", DecodePng},
    {"\xFF\xD8\xFF", DecodeJpeg},
    {"GIF8", DecodeGif},
    {"BM", DecodeBmp},
};

bool StartsWith(std::span<const std::uint8_t> bytes, std::string_view signature) {
    return bytes.size() >= signature.size() &&
           std::equal(signature.begin(), signature.end(), bytes.begin(),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

}  // namespace

void CheckDeclaredSize(std::int64_t width, std::int64_t height) {
    if (IsBitmapSizeAllowed(width, height))
        return;
    const std::string size = std::to_string(width) + " x " + std::to_string(height);
    if (width < 1 || height < 1)
        throw ImageError("the picture claims a size of " + size + " pixels");
    throw ImageError("the picture claims " + size + " pixels, more than " +
                     std::to_string(kMaxBitmapSide) + " a side or " +
                     std::to_string(kMaxBitmapPixels) + " in all");
}

void ThrowDamaged(const std::string& format, const std::string& detail) {
    throw ImageError("the " + format + " picture is cut short or damaged: " + detail);
}

Bitmap DecodeImage(std::span<const std::uint8_t> bytes) {
    for (const Format& format : kFormats) {
        if (StartsWith(bytes, format.Signature))
            return format.Decode(bytes);
    }
    throw ImageError("not a PNG, JPEG, GIF or BMP picture");
}

Bitmap LoadImageFromFile(const std::filesystem::path& path) {
    const std::vector<std::uint8_t> bytes = ReadFile(path);
    try {
        return DecodeImage(bytes);
    } catch (const ImageError& error) {
        throw FileError(path, error.what());
    }
}

}  // namespace orbelle::graphics
