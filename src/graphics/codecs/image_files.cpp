#include "graphics/codecs/image_files.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "graphics/codecs/image_codecs.h"

namespace orbelle::graphics {
namespace {

struct Format {
    std::string_view Signature;
    Bitmap (*Decode)(const ByteSource&, PixelBudget&);
};

constexpr Format kFormats[] = {
    {"\x89PNG\r\n\x1A\n", DecodePng},
    {"\xFF\xD8\xFF", DecodeJpeg},
    {"GIF8", DecodeGif},
    {"BM", DecodeBmp},
};

// Null when the file is of none of them.
const Format* FindFormat(const ByteSource& file) {
    std::array<std::uint8_t, 8> start{};
    const std::size_t there = file.ReadAt(0, start);
    const auto begins = [&](const Format& format) {
        return format.Signature.size() <= there &&
               std::memcmp(start.data(), format.Signature.data(), format.Signature.size()) == 0;
    };
    const auto* format = std::ranges::find_if(kFormats, begins);
    return format == std::end(kFormats) ? nullptr : format;
}

}  // namespace

void ThrowDamaged(const std::string& format, const std::string& detail) {
    throw ImageError("the " + format + " picture is cut short or damaged: " + detail);
}

Bitmap DecodeImage(const ByteSource& file, PixelBudget& budget) {
    const Format* format = FindFormat(file);
    if (!format)
        throw ImageError("not a PNG, JPEG, GIF or BMP picture");
    return format->Decode(file, budget);
}

Bitmap DecodeImage(std::span<const std::uint8_t> file) {
    PixelBudget budget;
    return DecodeImage(MemorySource(file), budget);
}

bool IsPicture(const ByteSource& file) {
    return FindFormat(file) != nullptr;
}

Bitmap LoadImageFromFile(const std::filesystem::path& path, PixelBudget budget) {
    const FileSource file(path);
    try {
        Bitmap picture = DecodeImage(file, budget);
        file.RequireWasRead();
        return picture;
    } catch (const ImageError& error) {
        file.RequireWasRead();
        throw FileError(path, error.what());
    }
}

}  // namespace orbelle::graphics
