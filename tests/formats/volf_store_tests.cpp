#include "formats/volf_store.h"

#include <gmock/gmock.h>

#include <bit>
#include <cstring>

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

std::string ProblemOf(const Bytes& bytes, Document& document) {
    try {
        DecodeDocument(bytes, document);
    } catch (const Error& error) {
        return error.what();
    }
    return "none";
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

    Document read;
    read.Master.Layers.resize(5);
    read.Master.SelectedLayer = 4;
    DecodeDocument(file, read);
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
        DecodeDocument(file, read);
        EXPECT_TRUE(SamePixels(read.Master.Layers[0].Image, RowOf(row)));
        EXPECT_TRUE(read.Master.Layers[1].Image.IsEmpty());
        EXPECT_TRUE(read.Master.Layers[1].Region.IsNull());
    }
    Put<float>(file, kOpacityAt, 1e30f);
    Put<std::int32_t>(file, kImageHeightAt, -4);
    DecodeDocument(file, read);
    EXPECT_EQ(read.Master.Layers[0].Opacity, 1);
    EXPECT_TRUE(read.Master.Layers[0].Image.IsEmpty());
    EXPECT_EQ(read.Master.Layers[0].ImageHeight, 0);
    EXPECT_EQ(read.Master.LayerCount(), 2);
}

TEST(VolfStore, OnlyTheMagicMakesADocument) {
    for (const std::string start : {"", "volf", "volf\t1", "Volf 1"}) {
        Document document = TwoLayers();
        EXPECT_THROW(DecodeDocument(Bytes(start.begin(), start.end()), document), InvalidFile);
        EXPECT_EQ(document.Master.LayerCount(), 2);
    }
    Bytes file = EncodeDocument(TwoLayers());
    std::fill(file.begin() + 5, file.begin() + kPageWidthAt, 0xEE);  // format number and tag
    file[kPictureAt] ^= 1;  // a damaged picture leaves a transparent layer
    Document document;
    DecodeDocument(file, document);
    ASSERT_EQ(document.Master.LayerCount(), 2);
    EXPECT_TRUE(SamePixels(document.Master.Layers[0].Image, Bitmap(3, 1)));
    EXPECT_TRUE(document.Master.Layers[0].Region.IsNull());
    EXPECT_EQ(document.Master.Layers[1].Image.GetPixel(0, 0), 0xFFABCDEF);
}

TEST(VolfStore, AFileCutShortKeepsItsWholeLayers) {
    const Bytes file = EncodeDocument(TwoLayers());
    const std::size_t secondLayerAt = kPictureAt + file[kPictureBytesAt] + 1;
    for (std::size_t size = 0; size < file.size(); ++size) {
        Document document;
        document.Master.Layers.resize(3);
        // Memory of its own, so that a read past the end shows.
        const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_NE(ProblemOf(cut, document), "none") << size;
        const int whole = size < kHeaderBytes ? 3 : size < secondLayerAt ? 0 : 1;
        EXPECT_EQ(document.Master.LayerCount(), whole) << size;
    }
}

TEST(VolfStore, HostileNumbersEndTheReading) {
    constexpr std::int32_t kNoNumber = 0x7FC00000, kInfinity = 0x7F800000;  // as floats
    const struct {
        std::size_t Offset;
        std::int32_t Value;
        const char* Problem;
        int Layers;
    } cases[] = {
        {kPageWidthAt, graphics::kMaxBitmapSide + 1, "the page is too large", 3},
        {kPageWidthAt, -5, "none", 2},
        {kCountAt, 0, "none", 0},
        {kCountAt, -1, "none", 0},
        {kCountAt, 3, "layer 2: the file is cut short", 2},
        {kCountAt, INT32_MAX, "layer 2: the file is cut short", 2},
        {kImageWidthAt, 20000, "layer 0: its picture is too large: 20000 x 1 pixels", 0},
        {kPictureBytesAt, -1, "layer 0: the file is cut short", 0},
        {kPictureBytesAt, INT32_MIN, "layer 0: the file is cut short", 0},
        {kPictureBytesAt, INT32_MAX, "layer 0: the file is cut short", 0},
        {kRectAt, kNoNumber, "layer 0: its rectangle", 0},
        {kRectAt + 12, kInfinity, "layer 0: its rectangle", 0},
        {kBaseRectAt + 4, std::bit_cast<std::int32_t>(-5e6f), "layer 0: its rectangle", 0},
        {kOpacityAt, kNoNumber, "layer 0: its opacity", 0},
    };
    for (const auto& [offset, value, problem, layers] : cases) {
        Bytes file = EncodeDocument(TwoLayers());
        Put(file, offset, value);
        Document document;
        document.Master.Layers.resize(3);
        EXPECT_THAT(ProblemOf(file, document), HasSubstr(problem)) << offset << ": " << value;
        EXPECT_EQ(document.Master.LayerCount(), layers) << offset << ": " << value;
    }
}

TEST(VolfStore, ReadsNoMoreLayersThanAStackHolds) {
    Document document;
    document.Master.Layers.resize(document::kMaxLayers);
    Bytes file = EncodeDocument(document);
    EXPECT_EQ(ProblemOf(file, document), "none");
    EXPECT_EQ(document.Master.LayerCount(), document::kMaxLayers);

    Put<std::int32_t>(file, kCountAt, document::kMaxLayers + 1);
    file.resize(file.size() + kLayerBytes + 1);
    EXPECT_EQ(ProblemOf(file, document), "more than 5001 layers");
    EXPECT_EQ(document.Master.LayerCount(), document::kMaxLayers);
}

TEST(VolfStore, ProblemsOfFilesNameThem) {
    const testing::TemporaryFolder folder;
    const auto path = folder / "icon.volf";
    SaveDocument(path, TwoLayers());
    Document document;
    LoadDocument(path, document);
    EXPECT_EQ(document.Master.LayerCount(), 2);

    std::filesystem::resize_file(path, std::filesystem::file_size(path) - 1);
    EXPECT_THAT([&] { LoadDocument(path, document); },
                ::testing::ThrowsMessage<graphics::FileError>(path.string() +
                                                              ": layer 1: the file is cut short"));
    graphics::WriteFile(path, Bytes{'B', 'M'});
    EXPECT_THROW(LoadDocument(path, document), InvalidFile);
    EXPECT_THROW(LoadDocument(folder / "missing.volf", document), graphics::FileError);
    EXPECT_EQ(document.Master.LayerCount(), 1);
}

}  // namespace
}  // namespace orbelle::formats
