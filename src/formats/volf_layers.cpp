#include "formats/volf_layers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "filters/create_region.h"
#include "formats/document_limits.h"
#include "formats/volf_layout.h"
#include "graphics/codecs/image_files.h"
#include "graphics/little_endian.h"
#include "graphics/parallel.h"

namespace orbelle::formats {
namespace {

using document::IconLayer;
using graphics::ByteReader;
using graphics::ByteSource;
using graphics::PartOfSource;
using graphics::RectF;

constexpr std::size_t kSliderBytes = 16;

constexpr char kCutShort[] = "the file is cut short";

std::string SizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height) + " pixels";
}

RectF ReadRect(ByteReader& record) {
    RectF rect;
    for (float* number : {&rect.X, &rect.Y, &rect.Width, &rect.Height}) {
        *number = record.Read<float>();
        // Written so that not-a-number fails.
        if (!(std::abs(*number) <= kMaxCoordinate))
            throw Error("its rectangle lies too far out");
    }
    return rect;
}

float ReadOpacity(ByteReader& record) {
    const auto opacity = record.Read<float>();
    if (std::isnan(opacity))
        throw Error("its opacity is not a number");
    return std::clamp(opacity, 0.0f, 1.0f);
}

// The size that a PNG declares; none when the picture is no PNG.
std::optional<std::pair<std::int64_t, std::int64_t>> PngSize(const ByteSource& picture) {
    constexpr std::uint64_t kPngSignature = 0x0A1A0A0D474E5089;
    if (picture.NumberAt<std::uint64_t>(0) != kPngSignature)
        return std::nullopt;
    const auto bigEndian = [&](std::uint64_t place) {
        std::uint32_t number = 0;
        for (std::uint64_t i = 0; i < sizeof number; ++i)
            number = number << 8 | picture.NumberAt<std::uint8_t>(place + i);
        return std::int64_t{number};
    };
    return std::pair(bigEndian(16), bigEndian(20));
}

// A layer and where its picture stands.
struct Record {
    IconLayer Layer;
    PartOfSource File;
    bool IsDecoded = false;
    std::int64_t FilePixels = 0;  // of a picture that is still to be decoded
    std::string Problem{};        // with the picture
};

// Of a layer on its own, so that several can be decoded at a time.
void DecodePicture(Record& record) {
    IconLayer& layer = record.Layer;
    try {
        graphics::PixelBudget budget{record.FilePixels};
        if (!record.IsDecoded)
            layer.Image = DecodeStoredImage(record.File, budget);
    } catch (const graphics::ImageError& error) {
        record.Problem = error.what();
    }
    if (!record.Problem.empty())
        return;
    layer.Image = CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight);
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
}

class LayerReader {
public:
    LayerReader(const ByteSource& file, std::uint64_t place, PixelAllowance& allowance,
                document::Page& page)
        : file_(file), allowance_(allowance), page_(page), place_(place) {}

    LayersRead Read(std::int32_t count);

private:
    std::vector<Record> ReadRecords(std::int32_t count, LayersRead& read);
    Record ReadRecord();
    void TakePicture(Record& record);

    const ByteSource& file_;
    PixelAllowance& allowance_;
    document::Page& page_;
    std::uint64_t place_;
};

void AddProblem(LayersRead& read, std::size_t layer, const std::string& problem) {
    read.Problems.push_back("layer " + std::to_string(layer) + ": " + problem);
}

LayersRead LayerReader::Read(std::int32_t count) {
    LayersRead read;
    std::vector<Record> records = ReadRecords(count, read);
    read.End = place_;
    graphics::ForEachInParallel(records.size(), [&](std::size_t i) { DecodePicture(records[i]); });
    const std::vector<std::string> end = std::exchange(read.Problems, {});
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!records[i].Problem.empty()) {
            AddProblem(read, i, records[i].Problem);
            continue;
        }
        page_.Layers.push_back(std::move(records[i].Layer));
        read.Places.push_back(static_cast<int>(i));
    }
    read.Problems.insert(read.Problems.end(), end.begin(), end.end());
    return read;
}

std::vector<Record> LayerReader::ReadRecords(std::int32_t count, LayersRead& read) {
    std::vector<Record> records;
    const auto readable = static_cast<std::size_t>(std::clamp(count, 0, document::kMaxLayers));
    try {
        while (records.size() < readable)
            records.push_back(ReadRecord());
        if (count > document::kMaxLayers)
            read.Problems.push_back("more than " + std::to_string(document::kMaxLayers) +
                                    " layers");
    } catch (const Error& error) {
        AddProblem(read, records.size(), error.what());
    }
    read.IsComplete = read.Problems.empty();
    return records;
}

Record LayerReader::ReadRecord() {
    std::array<std::uint8_t, kVolfLayerBytes> bytes{};
    const std::size_t there = file_.ReadAt(place_, bytes);
    ByteReader record({bytes.data(), there});
    IconLayer layer;
    // Pictures keep their adjusted look, so the sliders start at neutral again
    // (docs/oddities.md, "Sliders of an opened document").
    record.Take(kSliderBytes);
    layer.ImageHeight = std::max(record.Read<std::int32_t>(), 0);
    layer.Opacity = ReadOpacity(record);
    layer.BaseRect = ReadRect(record);
    layer.ImageWidth = std::max(record.Read<std::int32_t>(), 0);
    layer.Rect = ReadRect(record);
    layer.ScaleValue = record.Read<std::int32_t>();
    layer.Visible = record.Read<std::int16_t>() != 0;
    layer.ClipNextLayer = record.Read<std::int16_t>() != 0;
    record.Read<std::int32_t>();  // a handle of the program that wrote it
    const auto length = record.Read<std::int32_t>();
    const PartOfSource picture(file_, place_ + kVolfLayerBytes,
                               static_cast<std::uint64_t>(std::max(length, 0)));
    // A byte of zero follows the picture.
    const std::uint64_t end = place_ + kVolfLayerBytes + picture.Size() + 1;
    if (length < 0 || picture.Size() < static_cast<std::uint64_t>(length) || end > file_.Size())
        throw Error(kCutShort);
    Record read{std::move(layer), picture};
    TakePicture(read);
    place_ = end;
    return read;
}

// Pictures that are no PNG, which we do not write, are decoded at once: before that nobody knows
// how large they are.
void LayerReader::TakePicture(Record& record) {
    IconLayer& layer = record.Layer;
    const bool isBlank = layer.ImageWidth == 0 || layer.ImageHeight == 0;
    if (!isBlank && !graphics::IsBitmapSizeAllowed(layer.ImageWidth, layer.ImageHeight))
        throw Error("its picture is too large: " + SizeText(layer.ImageWidth, layer.ImageHeight));
    allowance_.Take(LayerPixels(layer, page_));
    const auto size = PngSize(record.File);
    record.IsDecoded = isBlank || !size;
    if (isBlank)
        return;
    if (size) {
        const auto [width, height] = *size;
        record.FilePixels = graphics::IsBitmapSizeAllowed(width, height) ? width * height : 0;
        // Both are in memory while one is cut out of the other.
        if (width != layer.ImageWidth || height != layer.ImageHeight)
            allowance_.Take(record.FilePixels);
        return;
    }
    graphics::PixelBudget budget{std::min(allowance_.Left(), graphics::kMaxBitmapPixels)};
    const std::int64_t before = budget.Left;
    try {
        layer.Image = DecodeStoredImage(record.File, budget);
    } catch (const graphics::ImageError& error) {
        record.Problem = error.what();
    }
    allowance_.Take(before - budget.Left);
}

}  // namespace

void PixelAllowance::Take(std::int64_t pixels) {
    left_ -= pixels;
    if (left_ < 0)
        throw Error("the page and the layers up to here have " +
                    std::to_string(kMaxDocumentPixels - left_) +
                    " pixels together, more than the " + std::to_string(kMaxDocumentPixels) +
                    " that a document can hold");
}

LayersRead ReadLayers(const ByteSource& file, std::uint64_t place, std::int32_t count,
                      PixelAllowance& allowance, document::Page& page) {
    return LayerReader(file, place, allowance, page).Read(count);
}

}  // namespace orbelle::formats
