#include "formats/volf_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "filters/create_region.h"
#include "formats/document_limits.h"
#include "formats/parallel.h"
#include "formats/volf_layout.h"
#include "graphics/codecs/image_files.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using document::Document;
using document::IconLayer;
using graphics::ByteReader;
using graphics::ByteSource;
using graphics::PartOfSource;
using graphics::RectF;

constexpr std::size_t kHeaderBytes = 34;
constexpr std::size_t kLayerBytes = 76;  // before the picture
constexpr std::size_t kSliderBytes = 16;
constexpr std::size_t kMaxToldProblems = 3;

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
            layer.Image = DecodeImage(record.File, budget);
    } catch (const graphics::ImageError& error) {
        record.Problem = error.what();
    }
    if (!record.Problem.empty())
        return;
    layer.Image = CopyBitmap(layer.Image, layer.ImageWidth, layer.ImageHeight);
    filters::RebuildRegion(layer.Region, layer.Image, {layer.Rect.X, layer.Rect.Y});
}

class Reader {
public:
    explicit Reader(const ByteSource& file) : file_(file) {}

    LoadedDocument Read();

private:
    void ReadHeader();
    std::vector<Record> ReadRecords();
    Record ReadRecord();
    void TakePicture(Record& record);
    void Take(std::int64_t pixels);
    void AddProblem(std::size_t layer, const std::string& problem) {
        problems_.push_back("layer " + std::to_string(layer) + ": " + problem);
    }
    std::string Damage() const;

    const ByteSource& file_;
    std::uint64_t place_ = 0;
    std::int32_t count_ = 0;  // of layers, as the header says
    std::int64_t pixelsLeft_ = kMaxDocumentPixels;
    Document document_;
    std::vector<std::string> problems_;
};

LoadedDocument Reader::Read() {
    ReadHeader();
    std::vector<Record> records = ReadRecords();
    ForEachInParallel(records.size(), [&](std::size_t i) { DecodePicture(records[i]); });
    const std::vector<std::string> end = std::exchange(problems_, {});
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i].Problem.empty())
            document_.Master.Layers.push_back(std::move(records[i].Layer));
        else
            AddProblem(i, records[i].Problem);
    }
    problems_.insert(problems_.end(), end.begin(), end.end());
    if (document_.Master.Layers.empty() && !problems_.empty())
        throw Error(problems_.front());
    const std::string damage = Damage();
    return {std::move(document_), damage};
}

std::string Reader::Damage() const {
    if (problems_.empty())
        return {};
    const std::size_t told = std::min(problems_.size(), kMaxToldProblems);
    std::string text;
    for (std::size_t i = 0; i < told; ++i)
        text += problems_[i] + "; ";
    if (told < problems_.size())
        text += "and " + std::to_string(problems_.size() - told) + " more; ";
    return text + std::to_string(document_.Master.LayerCount()) + " of " + std::to_string(count_) +
           " layers could be read";
}

void Reader::ReadHeader() {
    if (!IsDocument(file_))
        throw InvalidFile();
    std::array<std::uint8_t, kHeaderBytes> bytes{};
    const std::size_t there = file_.ReadAt(0, bytes);
    ByteReader header({bytes.data(), there});
    header.Take(kVolfMagic.size() + sizeof kVolfFormatNumber + kVolfTag.size());
    document::Page& page = document_.Master;
    page.Width = header.Read<std::int32_t>();
    page.Height = header.Read<std::int32_t>();
    document_.Background = header.Read<graphics::Argb>();
    count_ = std::max(header.Read<std::int32_t>(), 0);
    if (!graphics::IsBitmapSizeAllowed(std::max(page.Width, 1), std::max(page.Height, 1)))
        throw Error("the page is too large: " + SizeText(page.Width, page.Height));
    place_ = kHeaderBytes;
    Take(PagePixels(page));
}

void Reader::Take(std::int64_t pixels) {
    pixelsLeft_ -= pixels;
    if (pixelsLeft_ < 0)
        throw Error("the page and the layers up to here have " +
                    std::to_string(kMaxDocumentPixels - pixelsLeft_) +
                    " pixels together, more than the " + std::to_string(kMaxDocumentPixels) +
                    " that a document can hold");
}

std::vector<Record> Reader::ReadRecords() {
    std::vector<Record> records;
    const auto count = static_cast<std::size_t>(std::min(count_, document::kMaxLayers));
    try {
        while (records.size() < count)
            records.push_back(ReadRecord());
        if (count_ > document::kMaxLayers)
            problems_.push_back("more than " + std::to_string(document::kMaxLayers) + " layers");
    } catch (const Error& error) {
        AddProblem(records.size(), error.what());
    }
    return records;
}

Record Reader::ReadRecord() {
    std::array<std::uint8_t, kLayerBytes> bytes{};
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
    const PartOfSource picture(file_, place_ + kLayerBytes,
                               static_cast<std::uint64_t>(std::max(length, 0)));
    // A byte of zero follows the picture.
    const std::uint64_t end = place_ + kLayerBytes + picture.Size() + 1;
    if (length < 0 || picture.Size() < static_cast<std::uint64_t>(length) || end > file_.Size())
        throw Error(kCutShort);
    Record read{std::move(layer), picture};
    TakePicture(read);
    place_ = end;
    return read;
}

// Pictures that are no PNG, which we do not write, are decoded at once: before that nobody knows
// how large they are.
void Reader::TakePicture(Record& record) {
    IconLayer& layer = record.Layer;
    const bool isBlank = layer.ImageWidth == 0 || layer.ImageHeight == 0;
    if (!isBlank && !graphics::IsBitmapSizeAllowed(layer.ImageWidth, layer.ImageHeight))
        throw Error("its picture is too large: " + SizeText(layer.ImageWidth, layer.ImageHeight));
    Take(LayerPixels(layer, document_.Master));
    const auto size = PngSize(record.File);
    record.IsDecoded = isBlank || !size;
    if (isBlank)
        return;
    if (size) {
        const auto [width, height] = *size;
        record.FilePixels = graphics::IsBitmapSizeAllowed(width, height) ? width * height : 0;
        // Both are in memory while one is cut out of the other.
        if (width != layer.ImageWidth || height != layer.ImageHeight)
            Take(record.FilePixels);
        return;
    }
    graphics::PixelBudget budget{std::min(pixelsLeft_, graphics::kMaxBitmapPixels)};
    const std::int64_t before = budget.Left;
    try {
        layer.Image = DecodeImage(record.File, budget);
    } catch (const graphics::ImageError& error) {
        record.Problem = error.what();
    }
    Take(before - budget.Left);
}

}  // namespace

InvalidFile::InvalidFile() : Error("Invalid File") {}

bool IsDocument(const ByteSource& file) {
    std::array<std::uint8_t, kVolfMagic.size()> start{};
    return file.ReadAt(0, start) == start.size() &&
           std::equal(start.begin(), start.end(), kVolfMagic.begin());
}

LoadedDocument DecodeDocument(const ByteSource& file) {
    return Reader(file).Read();
}

LoadedDocument LoadDocument(const std::filesystem::path& path) {
    const graphics::FileSource file(path);
    try {
        LoadedDocument loaded = DecodeDocument(file);
        file.RequireWasRead();
        if (!loaded.Damage.empty())
            loaded.Damage = graphics::FileError(path, loaded.Damage).what();
        return loaded;
    } catch (const InvalidFile&) {
        file.RequireWasRead();
        throw;
    } catch (const graphics::FileError&) {
        throw;
    } catch (const Error& error) {
        file.RequireWasRead();
        throw graphics::FileError(path, error.what());
    }
}

}  // namespace orbelle::formats
