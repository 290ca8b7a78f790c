#include "graphics/codecs/image_files.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "graphics/codecs/image_codecs.h"

namespace orbelle::graphics {
namespace {

struct Format {
    std::string_view Signature;
    Bitmap (*Decode)(const ByteSource&, PixelBudget&, ColorHandling);
    std::string_view Kind = {};  // what stands behind a length after the signature
};

constexpr std::size_t kKindPlace = 8;

constexpr Format kFormats[] = {
    {"\x89PNG\r\n\x1A\n", DecodePng},
    {"\xFF\xD8\xFF", DecodeJpeg},
    {"GIF8", [](const ByteSource& file, PixelBudget& budget,
                ColorHandling) { return DecodeGif(file, budget); }},
    {"BM", [](const ByteSource& file, PixelBudget& budget,
              ColorHandling) { return DecodeBmp(file, budget); }},
    {"RIFF",
     [](const ByteSource& file, PixelBudget& budget, ColorHandling) {
         return DecodeWebp(file, budget);
     },
     "WEBP"},
};

// Those that have always been in documents.
constexpr std::span<const Format> kStoredFormats = std::span(kFormats).first(4);

// Null when the file is of none of them.
const Format* FindFormat(const ByteSource& file, std::span<const Format> formats = kFormats) {
    std::array<std::uint8_t, 12> bytes{};
    const std::string_view start(reinterpret_cast<const char*>(bytes.data()),
                                 file.ReadAt(0, bytes));
    const auto format = std::ranges::find_if(formats, [&](const Format& known) {
        return start.starts_with(known.Signature) &&
               (known.Kind.empty() ||
                start.substr(std::min(kKindPlace, start.size())) == known.Kind);
    });
    return format == formats.end() ? nullptr : &*format;
}

// What reading the file gives; its problems are told with its path.
template <typename Read>
auto ReadFrom(const std::filesystem::path& path, Read read) {
    const FileSource file(path);
    try {
        auto result = read(file);
        file.RequireWasRead();
        return result;
    } catch (const ImageError& error) {
        file.RequireWasRead();
        throw FileError(path, error.what());
    }
}

}  // namespace

void ThrowDamaged(const std::string& format, const std::string& detail) {
    throw ImageError("the " + format + " picture is cut short or damaged: " + detail);
}

Bitmap DecodeImage(const ByteSource& file, PixelBudget& budget, int svgSide) {
    if (const Format* format = FindFormat(file))
        return format->Decode(file, budget, ColorHandling::ToSrgb);
    if (IsSvg(file))
        return DecodeSvg(file, budget, svgSide);
    throw ImageError("not a PNG, JPEG, GIF, BMP, WebP or SVG picture");
}

Bitmap DecodeStoredImage(const ByteSource& file, PixelBudget& budget) {
    const Format* format = FindFormat(file, kStoredFormats);
    if (!format)
        throw ImageError("not a PNG, JPEG, GIF or BMP picture");
    return format->Decode(file, budget, ColorHandling::Keep);
}

Bitmap DecodeImage(std::span<const std::uint8_t> file) {
    PixelBudget budget;
    return DecodeImage(MemorySource(file), budget);
}

bool IsPicture(const ByteSource& file) {
    return FindFormat(file) || IsSvg(file);
}

Bitmap LoadImageFromFile(const std::filesystem::path& path, PixelBudget budget, int svgSide) {
    return ReadFrom(path,
                    [&](const ByteSource& file) { return DecodeImage(file, budget, svgSide); });
}

SvgSize ReadSvgSize(const std::filesystem::path& path) {
    return ReadFrom(path, [](const ByteSource& file) { return SizeOfSvg(file); });
}

}  // namespace orbelle::graphics
