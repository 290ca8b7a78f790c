#include "formats/volf_store.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "filters/create_region.h"
#include "formats/parallel.h"
#include "graphics/codecs/image_files.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using document::Document;
using document::IconLayer;
using graphics::Append;
using graphics::Bitmap;
using graphics::ByteReader;
using graphics::RectF;

constexpr std::string_view kMagic = "volf ";
constexpr std::uint16_t kFormatNumber = 1;
constexpr std::string_view kTag = "OrbelleWork";
constexpr std::size_t kSliderBytes = 16;

// Regions know no pixel farther out.
constexpr float kMaxCoordinate = 4194304;

// What all layers of a file together may take: 112 Mi pixels, or less when their regions are
// ragged, as if every run of pixels in a region cost so many pixels more.
constexpr std::int64_t kMaxPixels = std::int64_t{112} << 20;
constexpr std::int64_t kPixelsPerRun = 8;

void AppendRect(std::vector<std::uint8_t>& file, const RectF& rect) {
    Append<float>(file, rect.X);
    Append<float>(file, rect.Y);
    Append<float>(file, rect.Width);
    Append<float>(file, rect.Height);
}

void AppendFlag(std::vector<std::uint8_t>& file, bool flag) {
    Append<std::int16_t>(file, flag ? -1 : 0);
}

// Up to the picture.
void AppendLayer(std::vector<std::uint8_t>& file, const IconLayer& layer) {
    for (int slider : {layer.Hue, layer.Contrast, layer.Brightness, layer.Saturation})
        Append<std::int32_t>(file, slider);
    Append<std::int32_t>(file, layer.ImageHeight);
    Append<float>(file, layer.Opacity);
    AppendRect(file, layer.BaseRect);
    Append<std::int32_t>(file, layer.ImageWidth);
    AppendRect(file, layer.Rect);
    Append<std::int32_t>(file, layer.ScaleValue);
    AppendFlag(file, layer.Visible);
    AppendFlag(file, layer.ClipNextLayer);
    Append<std::int32_t>(file, 0);  // the path's place; paths are not kept
}

void AppendPicture(std::vector<std::uint8_t>& file, const std::vector<std::uint8_t>& png) {
    Append<std::int32_t>(file, static_cast<std::int32_t>(png.size()));
    file.insert(file.end(), png.begin(), png.end());
    file.push_back(0);
}

std::string SizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height) + " pixels";
}

class LayerReader {
public:
    explicit LayerReader(ByteReader& file) : file_(file) {}

    IconLayer Read();

private:
    RectF ReadRect();
    float ReadOpacity();
    bool ReadFlag() { return file_.Read<std::int16_t>() != 0; }
    Bitmap ReadPicture(int width, int height);
    graphics::Region BuildRegion(const IconLayer& layer);
    void TakeMemory(std::int64_t pixels);

    ByteReader& file_;
    std::int64_t pixelsLeft_ = kMaxPixels;
};

IconLayer LayerReader::Read() {
    IconLayer layer;
    // Pictures keep their adjusted look, so the sliders start at neutral again
    // (docs/oddities.md, "Sliders of an opened document").
    file_.Take(kSliderBytes);
    layer.ImageHeight = std::max(file_.Read<std::int32_t>(), 0);
    layer.Opacity = ReadOpacity();
    layer.BaseRect = ReadRect();
    layer.ImageWidth = std::max(file_.Read<std::int32_t>(), 0);
    layer.Rect = ReadRect();
    layer.ScaleValue = file_.Read<std::int32_t>();
    layer.Visible = ReadFlag();
    layer.ClipNextLayer = ReadFlag();
    file_.Read<std::int32_t>();  // a handle of the program that wrote it
    layer.Image = ReadPicture(layer.ImageWidth, layer.ImageHeight);
    layer.Region = BuildRegion(layer);
    return layer;
}

RectF LayerReader::ReadRect() {
    RectF rect;
    for (float* number : {&rect.X, &rect.Y, &rect.Width, &rect.Height}) {
        *number = file_.Read<float>();
        // Written so that not-a-number fails.
        if (!(std::abs(*number) <= kMaxCoordinate))
            throw Error("its rectangle lies too far out");
    }
    return rect;
}

float LayerReader::ReadOpacity() {
    const auto opacity = file_.Read<float>();
    if (std::isnan(opacity))
        throw Error("its opacity is not a number");
    return std::clamp(opacity, 0.0f, 1.0f);
}

Bitmap LayerReader::ReadPicture(int width, int height) {
    const auto lastByte = file_.Read<std::int32_t>();
    if (lastByte < 0)
        throw Error("the file is cut short");
    const auto bytes = file_.Take(static_cast<std::size_t>(lastByte) + 1);
    if (width == 0 || height == 0)
        return {};
    if (!graphics::IsBitmapSizeAllowed(width, height))
        throw Error("its picture is too large: " + SizeText(width, height));
    TakeMemory(std::int64_t{width} * height);
    Bitmap picture;
    try {
        picture = graphics::DecodeImage(bytes);
    } catch (const graphics::ImageError&) {
        // A layer without a readable picture stays, and shows nothing.
    }
    return CopyBitmap(picture, width, height);
}

// Runs of visible pixels in all rows.
std::int64_t CountRuns(const Bitmap& image) {
    std::int64_t runs = 0;
    for (int y = 0; y < image.Height(); ++y) {
        const graphics::Argb* row = image.Row(y);
        bool inRun = false;
        for (int x = 0; x < image.Width(); ++x) {
            const bool visible = graphics::AlphaOf(row[x]) != 0;
            runs += visible && !inRun;
            inRun = visible;
        }
    }
    return runs;
}

graphics::Region LayerReader::BuildRegion(const IconLayer& layer) {
    TakeMemory(CountRuns(layer.Image) * kPixelsPerRun);
    graphics::Region region;
    filters::RebuildRegion(region, layer.Image, {layer.Rect.X, layer.Rect.Y});
    return region;
}

void LayerReader::TakeMemory(std::int64_t pixels) {
    pixelsLeft_ -= pixels;
    if (pixelsLeft_ < 0)
        throw Error("the pictures up to here need too much memory");
}

bool StartsWithMagic(std::span<const std::uint8_t> bytes) {
    return bytes.size() >= kMagic.size() && std::equal(kMagic.begin(), kMagic.end(), bytes.begin());
}

}  // namespace

InvalidFile::InvalidFile() : Error("Invalid File") {}

std::vector<std::uint8_t> EncodePicture(const IconLayer& layer) {
    return EncodePng(CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight));
}

DocumentFrame EncodeFrame(const Document& document) {
    DocumentFrame frame{{kMagic.begin(), kMagic.end()}, {}};
    std::vector<std::uint8_t>& file = frame.Bytes;
    Append<std::uint16_t>(file, kFormatNumber);
    file.insert(file.end(), kTag.begin(), kTag.end());
    Append<std::int32_t>(file, document.Master.Width);
    Append<std::int32_t>(file, document.Master.Height);
    Append<graphics::Argb>(file, document.Background);
    Append<std::int32_t>(file, document.Master.LayerCount());
    for (const IconLayer& layer : document.Master.Layers) {
        AppendLayer(file, layer);
        frame.PictureAt.push_back(static_cast<std::uint32_t>(file.size()));
    }
    return frame;
}

std::vector<std::uint8_t> FillFrame(const DocumentFrame& frame,
                                    std::span<const std::vector<std::uint8_t>> pictures) {
    if (pictures.size() != frame.PictureAt.size())
        throw Error("the pictures of the document are not complete");
    std::vector<std::uint8_t> file;
    std::size_t done = 0;
    const auto copyUpTo = [&](std::size_t end) {
        if (end < done || end > frame.Bytes.size())
            throw Error("the pictures of the document have no place");
        file.insert(file.end(), frame.Bytes.begin() + static_cast<std::ptrdiff_t>(done),
                    frame.Bytes.begin() + static_cast<std::ptrdiff_t>(end));
        done = end;
    };
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        copyUpTo(frame.PictureAt[i]);
        AppendPicture(file, pictures[i]);
    }
    copyUpTo(frame.Bytes.size());
    return file;
}

std::vector<std::uint8_t> EncodeDocument(const Document& document) {
    // The pictures take nearly all of the time.
    std::vector<std::vector<std::uint8_t>> pngs(document.Master.Layers.size());
    ForEachInParallel(pngs.size(),
                      [&](std::size_t i) { pngs[i] = EncodePicture(document.Master.Layers[i]); });
    return FillFrame(EncodeFrame(document), pngs);
}

void DecodeDocument(std::span<const std::uint8_t> bytes, Document& document) {
    if (!StartsWithMagic(bytes))
        throw InvalidFile();
    ByteReader file(bytes);
    file.Take(kMagic.size() + sizeof kFormatNumber + kTag.size());
    const auto pageWidth = file.Read<std::int32_t>();
    const auto pageHeight = file.Read<std::int32_t>();
    const auto background = file.Read<graphics::Argb>();
    const auto count = file.Read<std::int32_t>();
    // A side below 1 is taken for 1 when the page is composed.
    if (!graphics::IsBitmapSizeAllowed(std::max(pageWidth, 1), std::max(pageHeight, 1)))
        throw Error("the page is too large: " + SizeText(pageWidth, pageHeight));

    document.Master.Width = pageWidth;
    document.Master.Height = pageHeight;
    document.Background = background;
    document.Master.SelectedLayer = document::kNoLayer;
    document.Master.Layers.clear();
    LayerReader layers(file);
    for (int i = 0; i < std::min(count, document::kMaxLayers); ++i) {
        try {
            document.Master.Layers.push_back(layers.Read());
        } catch (const Error& error) {
            throw Error("layer " + std::to_string(i) + ": " + error.what());
        }
    }
    if (count > document::kMaxLayers)
        throw Error("more than " + std::to_string(document::kMaxLayers) + " layers");
}

void SaveDocument(const std::filesystem::path& path, const Document& document) {
    graphics::WriteFile(path, EncodeDocument(document));
}

void LoadDocument(const std::filesystem::path& path, Document& document) {
    const std::vector<std::uint8_t> bytes = graphics::ReadFile(path);
    try {
        DecodeDocument(bytes, document);
    } catch (const InvalidFile&) {
        throw;
    } catch (const Error& error) {
        throw graphics::FileError(path, error.what());
    }
}

}  // namespace orbelle::formats
