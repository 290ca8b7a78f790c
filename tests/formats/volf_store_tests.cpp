// The document file: what is written, and what is read of it whole, damaged and hostile.
#include "formats/volf_store.h"

#include <gmock/gmock.h>

#include <bit>
#include <cmath>
#include <cstring>

#include "formats/document_limits.h"
#include "formats/volf_reader.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using document::Document;
using document::IconLayer;
using graphics::Bitmap;
using graphics::RectF;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using testing::RowOf;
using testing::SamePixels;
using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kHeaderBytes = 34;
constexpr std::size_t kLayerBytes = 76;  // before the picture

// Offsets in the header, and in the first layer's record.
constexpr std::size_t kPageWidthAt = 18;
constexpr std::size_t kCountAt = 30;
constexpr std::size_t kImageHeightAt = kHeaderBytes + 16;
constexpr std::size_t kOpacityAt = kHeaderBytes + 20;
constexpr std::size_t kBaseRectAt = kHeaderBytes + 24;
constexpr std::size_t kImageWidthAt = kHeaderBytes + 40;
constexpr std::size_t kRectAt = kHeaderBytes + 44;
constexpr std::size_t kPathAt = kHeaderBytes + 68;
constexpr std::size_t kPictureBytesAt = kHeaderBytes + 72;
constexpr std::size_t kPictureAt = kHeaderBytes + 76;

template <typename Number>
void Put(Bytes& bytes, std::size_t offset, Number value) {
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

// Every number is its own, and pixel 1 is transparent.
Document OneLayer() {
    Document document;
    document.Master.Width = 300;
    document.Master.Height = 200;
    document.Background = 0xFF804020;
    IconLayer& layer = document.Master.Layers.emplace_back();
    layer.Image = RowOf({0xFF112233, 0x00445566, 0x01778899});
    PlaceAt(layer, {10, 20, 3, 1});
    layer.Hue = 1;
    layer.Contrast = 2;
    layer.Brightness = 3;
    layer.Saturation = 4;
    layer.Opacity = 0.5f;
    layer.BaseRect = {-1, 0.5f, 3, 4};
    layer.ScaleValue = -3;
    layer.ClipNextLayer = true;
    layer.Visible = false;
    layer.Path.AddRectangle({0, 0, 1, 1});
    return document;
}

Document TwoLayers() {
    Document document = OneLayer();
    IconLayer& layer = document.Master.Layers.emplace_back();
    layer.Image = RowOf({0xFFABCDEF});
    PlaceAt(layer, {-1, 0, 1, 1});
    return document;
}

LoadedDocument Decode(const Bytes& bytes) {
    // Memory of its own, so that a read past the end shows.
    const Bytes own(bytes);
    return DecodeDocument(graphics::MemorySource(own));
}

// What is missing, or the failure; and how many layers came of it.
struct Result {
    std::string Problem;
    int Layers = 0;
};
Result ResultOf(const Bytes& bytes) {
    try {
        const LoadedDocument read = Decode(bytes);
        return {read.Damage, read.Document.Master.LayerCount()};
    } catch (const Error& error) {
        return {std::string("failed: ") + error.what(), 0};
    }
}

TEST(VolfStore, StandsInTheFileByteForByte) {
    const Document document = OneLayer();
    const Bytes file = EncodeDocument(document);
    // clang-format off
    const Bytes start = {
        'v', 'o', 'l', 'f', ' ', 1, 0, 'O', 'r', 'b', 'e', 'l', 'l', 'e', 'W', 'o', 'r', 'k',
        0x2C, 0x01, 0, 0,  200, 0, 0, 0,                                        // page size
        0x20, 0x40, 0x80, 0xFF,  1, 0, 0, 0,                                    // background, count
        1, 0, 0, 0,  2, 0, 0, 0,  3, 0, 0, 0,  4, 0, 0, 0,                      // sliders
        1, 0, 0, 0,  0, 0, 0, 0x3F,                                             // height, opacity
        0, 0, 0x80, 0xBF,  0, 0, 0, 0x3F,  0, 0, 0x40, 0x40,  0, 0, 0x80, 0x40,  // base rectangle
        3, 0, 0, 0,                                                             // width
        0, 0, 0x20, 0x41,  0, 0, 0xA0, 0x41,  0, 0, 0x40, 0x40,  0, 0, 0x80, 0x3F,  // rectangle
        0xFD, 0xFF, 0xFF, 0xFF,  0, 0, 0xFF, 0xFF,  0, 0, 0, 0,                 // scale, flags, path
    };
    // clang-format on
    Bytes picture = graphics::EncodePng(document.Master.Layers[0].Image);
    ASSERT_EQ(file.size(), kPictureAt + picture.size() + 1);
    EXPECT_THAT(Bytes(file.begin(), file.begin() + kPictureBytesAt), ElementsAreArray(start));
    EXPECT_EQ(graphics::NumberAt<std::uint32_t>(file, kPictureBytesAt), picture.size());
    picture.push_back(0);
    EXPECT_THAT(Bytes(file.begin() + kPictureAt, file.end()), ElementsAreArray(picture));
}

TEST(VolfStore, LayersComeBackWithNeutralSliders) {
    Document saved = TwoLayers();
    Bytes file = EncodeDocument(saved);
    Put<std::int32_t>(file, kPathAt, 0x12345678);
    file.push_back(7);

    const LoadedDocument loaded = Decode(file);
    const Document& read = loaded.Document;
    EXPECT_EQ(loaded.Damage, "");
    EXPECT_EQ(read.Master.SelectedLayer, document::kNoLayer);
    ResetLayerAdjust(saved.Master.Layers[0]);
    EXPECT_EQ(EncodeDocument(read), EncodeDocument(saved));
    const IconLayer& first = read.Master.Layers[0];
    EXPECT_TRUE(first.Path.IsNull());
    // Regions lie one pixel to the left of what they stand for.
    EXPECT_EQ(first.Region.Bounds(), (RectF{9, 20, 3, 1}));
    EXPECT_FALSE(first.Region.IsVisiblePoint(10, 20));
}

TEST(VolfStore, ThePictureHasTheSizeOfTheRecordAndOpacityStopsAt1) {
    Document saved = TwoLayers();
    saved.Master.Layers[1] = IconLayer{};
    Bytes file = EncodeDocument(saved);
    Document read;
    const std::vector<graphics::Argb> pictures[] = {{0xFF112233, 0x00445566},
                                                    {0xFF112233, 0x00445566, 0x01778899, 0}};
    for (const auto& row : pictures) {
        Put(file, kImageWidthAt, static_cast<std::int32_t>(row.size()));
        read = Decode(file).Document;
        EXPECT_TRUE(SamePixels(read.Master.Layers[0].Image, RowOf(row)));
        EXPECT_TRUE(read.Master.Layers[1].Image.IsEmpty());
        EXPECT_TRUE(read.Master.Layers[1].Region.IsNull());
    }
    Put<float>(file, kOpacityAt, 1e30f);
    Put<std::int32_t>(file, kImageHeightAt, -4);
    read = Decode(file).Document;
    EXPECT_EQ(read.Master.Layers[0].Opacity, 1);
    EXPECT_TRUE(read.Master.Layers[0].Image.IsEmpty());
    EXPECT_EQ(read.Master.Layers[0].ImageHeight, 0);
    EXPECT_EQ(read.Master.LayerCount(), 2);
}

TEST(VolfStore, OnlyTheMagicMakesADocument) {
    for (const std::string start : {"", "volf", "volf\t1", "Volf 1"})
        EXPECT_THROW(Decode(Bytes(start.begin(), start.end())), InvalidFile);
    Bytes file = EncodeDocument(TwoLayers());
    std::fill(file.begin() + 5, file.begin() + kPageWidthAt, 0xEE);  // format number and tag
    EXPECT_EQ(ResultOf(file).Layers, 2);
}

TEST(VolfStore, AFileCutShortKeepsItsWholeLayers) {
    const Bytes file = EncodeDocument(TwoLayers());
    const std::size_t secondLayerAt = kPictureAt + file[kPictureBytesAt] + 1;
    for (std::size_t size = 0; size < file.size(); ++size) {
        const auto [problem, layers] =
            ResultOf({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)});
        EXPECT_EQ(problem, size < 5              ? "failed: Invalid File"
                           : size < kHeaderBytes ? "failed: the file is cut short"
                           : size < secondLayerAt
                               ? "failed: layer 0: the file is cut short"
                               : "layer 1: the file is cut short; 1 of 2 layers could be read")
            << size;
        EXPECT_EQ(layers, size < secondLayerAt ? 0 : 1) << size;
    }
}

TEST(VolfStore, LayersWithoutAReadablePictureAreLeftOut) {
    const std::string words = "not a PNG, JPEG, GIF or BMP picture";
    Bytes file = EncodeDocument(TwoLayers());
    file[kPictureAt] ^= 1;
    const LoadedDocument read = Decode(file);
    EXPECT_EQ(read.Damage, "layer 0: " + words + "; 1 of 2 layers could be read");
    ASSERT_EQ(read.Document.Master.LayerCount(), 1);
    EXPECT_EQ(read.Document.Master.Layers[0].Image.GetPixel(0, 0), 0xFFABCDEF);

    file[kPictureAt + file[kPictureBytesAt] + 1 + kLayerBytes] ^= 1;
    EXPECT_EQ(ResultOf(file).Problem, "failed: layer 0: " + words);

    // Nine more pictures, and the last layer cut short: in few words.
    Document many = TwoLayers();
    many.Master.Layers.resize(12, many.Master.Layers[1]);
    file = EncodeDocument(many);
    const std::size_t picture = graphics::EncodePng(many.Master.Layers[1].Image).size() + 1;
    for (std::size_t i = 1; i < 10; ++i)
        file[file.size() - picture - i * (picture + kLayerBytes)] ^= 1;
    file.resize(file.size() - 1);
    EXPECT_EQ(ResultOf(file).Problem, "layer 2: " + words + "; layer 3: " + words + "; layer 4: " +
                                          words + "; and 7 more; 2 of 12 layers could be read");
}

TEST(VolfStore, HostileNumbersEndTheReading) {
    constexpr std::int32_t kNoNumber = 0x7FC00000, kInfinity = 0x7F800000;  // as floats
    const struct {
        std::size_t Offset;
        std::int32_t Value;
        const char* Problem;
        int Layers;
    } cases[] = {
        {kPageWidthAt, graphics::kMaxBitmapSide + 1, "failed: the page is too large", 0},
        {kPageWidthAt, -5, "", 2},
        {kCountAt, 0, "", 0},
        {kCountAt, -1, "", 0},
        {kCountAt, 3, "layer 2: the file is cut short; 2 of 3 layers", 2},
        {kCountAt, INT32_MAX, "layer 2: the file is cut short; 2 of 2147483647", 2},
        {kImageWidthAt, 20000, "failed: layer 0: its picture is too large: 20000 x 1 pixels", 0},
        {kPictureBytesAt, -1, "failed: layer 0: the file is cut short", 0},
        {kPictureBytesAt, INT32_MIN, "failed: layer 0: the file is cut short", 0},
        {kPictureBytesAt, INT32_MAX, "failed: layer 0: the file is cut short", 0},
        {kRectAt, kNoNumber, "failed: layer 0: its rectangle", 0},
        {kRectAt + 12, kInfinity, "failed: layer 0: its rectangle", 0},
        {kBaseRectAt + 4, std::bit_cast<std::int32_t>(-5e6f), "failed: layer 0: its rectangle", 0},
        {kOpacityAt, kNoNumber, "failed: layer 0: its opacity", 0},
    };
    for (const auto& [offset, value, problem, layers] : cases) {
        Bytes file = EncodeDocument(TwoLayers());
        Put(file, offset, value);
        const Result result = ResultOf(file);
        EXPECT_THAT(result.Problem, ::testing::StartsWith(problem)) << offset << ": " << value;
        EXPECT_EQ(result.Problem.empty(), *problem == 0) << offset << ": " << value;
        EXPECT_EQ(result.Layers, layers) << offset << ": " << value;
    }
}

TEST(VolfStore, ReadsNoMoreLayersThanAStackHolds) {
    Document document;
    document.Master.Layers.resize(document::kMaxLayers);
    Bytes file = EncodeDocument(document);
    EXPECT_EQ(ResultOf(file).Problem, "");
    EXPECT_EQ(ResultOf(file).Layers, document::kMaxLayers);

    Put<std::int32_t>(file, kCountAt, document::kMaxLayers + 1);
    file.resize(file.size() + kLayerBytes + 1);
    EXPECT_EQ(ResultOf(file).Problem, "more than 5001 layers; 5001 of 5002 layers could be read");
    EXPECT_EQ(ResultOf(file).Layers, document::kMaxLayers);
}

void AddLayer(Document& document, int width, const RectF& rect, const Bitmap& picture = {}) {
    IconLayer& layer = document.Master.Layers.emplace_back();
    layer.Image = picture;
    layer.ImageWidth = width;
    layer.ImageHeight = 1;
    layer.Rect = rect;
}

TEST(VolfStore, ALayerCountsForWhatItTakesToOpenIt) {
    constexpr int kSide = 10240;
    constexpr float kHeight = 1024;
    Document document;
    document.Master.Width = kSide;
    document.Master.Height = 1024;
    const RectF page{0, 0, kSide, kHeight};
    for (int i = 0; i < 9; ++i)
        AddLayer(document, 1, page, Bitmap(1, 1));
    EXPECT_EQ(PixelsOf(document.Master), kMaxDocumentPixels);
    Bytes file = EncodeDocument(document);
    EXPECT_EQ(ResultOf(file).Problem, "");
    RequireCanBeOpened(document);

    // A pixel more, by its picture or by what it covers.
    for (const RectF& rect : {RectF{-5, 0, 1, 1}, RectF{-5, 0, 6, 1}}) {
        Document more = document;
        AddLayer(more, 1, rect, Bitmap(1, 1));
        const std::string words =
            " have 104857601 pixels together, more than the 104857600 that a document can hold";
        EXPECT_EQ(ResultOf(EncodeDocument(more)).Problem,
                  "layer 9: the page and the layers up to here" + words +
                      "; 9 of 10 layers could be read");
        EXPECT_THAT([&] { SaveDocument("/missing/folder", more); },
                    ::testing::ThrowsMessage<Error>("The page and its layers" + words + "."));
    }

    IconLayer plate;
    PlaceAt(plate, {-5, 0, 10, 6});
    EXPECT_EQ(LayerPixels(plate, document.Master), 60);
    plate.ClipNextLayer = true;
    EXPECT_EQ(LayerPixels(plate, document.Master), 60 + 6 * 32);

    // A picture that is larger than its record says is cut, and counts: it took its time.
    document = {};
    AddLayer(document, 2, {}, Bitmap(6, 1));
    file = EncodeDocument(document);
    Put<std::int32_t>(file, kImageWidthAt, 1);
    EXPECT_EQ(ResultOf(file).Layers, 1);
    Put<std::int32_t>(file, kPageWidthAt, 8192);
    Put<std::int32_t>(file, kPageWidthAt + 4, 6144);
    const Bytes large = graphics::EncodePng(Bitmap(8192, 6144));
    file.resize(kPictureBytesAt);
    graphics::Append<std::uint32_t>(file, static_cast<std::uint32_t>(large.size()));
    file.insert(file.end(), large.begin(), large.end());
    file.push_back(0);
    EXPECT_EQ(ResultOf(file).Layers, 1);
    const Bytes layer(file.begin() + kHeaderBytes, file.end());
    file.insert(file.end(), layer.begin(), layer.end());
    Put<std::int32_t>(file, kCountAt, 2);
    EXPECT_THAT(ResultOf(file).Problem, ::testing::StartsWith("layer 1: the page and the layers"));
}

TEST(VolfStore, WhatCouldNotBeOpenedIsNotSaved) {
    const auto problemOf = [](const auto& change) -> std::string {
        Document document = TwoLayers();
        change(document.Master);
        try {
            RequireCanBeOpened(document);
        } catch (const Error& error) {
            return error.what();
        }
        EXPECT_EQ(ResultOf(EncodeDocument(document)).Problem, "");
        return "";
    };
    const auto changeLayer = [&](const auto& change) {
        return problemOf([&](document::Page& page) { change(page.Layers[1]); });
    };
    EXPECT_EQ(problemOf([](document::Page&) {}), "");
    EXPECT_EQ(problemOf([](document::Page& page) { page.Width = -7; }), "");
    EXPECT_EQ(problemOf([](document::Page& page) { page.Width = 16385; }),
              "The page is too large: 16385 x 200 pixels.");
    EXPECT_THAT(problemOf([](document::Page& page) { page.Layers.resize(5002); }),
                HasSubstr("5002 layers, more than the 5001"));
    EXPECT_EQ(changeLayer([](IconLayer& layer) { layer.ImageHeight = -5; }), "");
    EXPECT_EQ(changeLayer([](IconLayer& layer) { layer.ImageWidth = 16385; }),
              "The layer is too large: 16385 x 1 pixels.");
    EXPECT_EQ(changeLayer([](IconLayer& layer) { layer.Rect.X = -kMaxCoordinate; }), "");
    for (const float number : {5e6F, -5e6F, NAN})
        EXPECT_THAT(changeLayer([=](IconLayer& layer) { layer.BaseRect.Height = number; }),
                    HasSubstr("more than 4194304 pixels away"));
}

TEST(VolfStore, ProblemsOfFilesNameThem) {
    const testing::TemporaryFolder folder;
    const auto path = folder / "icon.volf";
    SaveDocument(path, TwoLayers());
    EXPECT_EQ(LoadDocument(path).Damage, "");

    std::filesystem::resize_file(path, std::filesystem::file_size(path) - 1);
    EXPECT_EQ(
        LoadDocument(path).Damage,
        graphics::Utf8Of(path) + ": layer 1: the file is cut short; 1 of 2 layers could be read");
    std::filesystem::resize_file(path, kPictureAt);
    EXPECT_THAT([&] { LoadDocument(path); },
                ::testing::ThrowsMessage<graphics::FileError>(graphics::Utf8Of(path) +
                                                              ": layer 0: the file is cut short"));
    graphics::WriteFile(path, Bytes{'B', 'M'});
    EXPECT_THROW(LoadDocument(path), InvalidFile);
    EXPECT_THROW(LoadDocument(folder / "missing.volf"), graphics::FileError);
}

}  // namespace
}  // namespace orbelle::formats
