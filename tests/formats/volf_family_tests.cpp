// The artwork of sizes in a document file.
#include "formats/volf_family.h"

#include <gmock/gmock.h>

#include <cstring>

#include "document/layer_slots.h"
#include "formats/volf_reader.h"
#include "formats/volf_store.h"
#include "graphics/checksum.h"
#include "graphics/errors.h"
#include "support/pictures.h"

namespace orbelle::formats {
namespace {

using document::Document;
using ::testing::ElementsAreArray;
using testing::FilledPicture;
using ::testing::StartsWith;
using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kVersionAt = 12;
constexpr std::size_t kLengthAt = 14;
constexpr std::size_t kChecksumAt = 18;
constexpr std::size_t kCountAt = 22;
constexpr std::size_t kFirstSizeAt = 26;
constexpr std::size_t kFirstLayersAt = 30;

Document MasterOnly() {
    Document document;
    document.Master = document::MakePicturePage(FilledPicture(3, 2, 0xFF112233));
    return document;
}

Document TwoSizes() {
    Document document = MasterOnly();
    document::Page small = document::MakePicturePage(FilledPicture(16, 16, 0x80FF0000));
    document::IconLayer& layer = document::OpenLayerSlot(small, document::SlotCopySize::Image);
    document::MakeImageLayer(small, layer, FilledPicture(5, 4, 0xFF00FF00));
    layer.Opacity = 0.5f;
    layer.Visible = false;
    document.SetArtwork(16, std::move(small));
    document.SetArtwork(24, document::MakePicturePage(FilledPicture(24, 24, 0xFF0000FF)));
    return document;
}

LoadedDocument Decode(const Bytes& bytes) {
    const Bytes own(bytes);
    return DecodeDocument(graphics::MemorySource(own));
}

template <typename Number>
void Put(Bytes& bytes, std::size_t offset, Number value) {
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

void Seal(Bytes& file, std::size_t family) {
    const auto content = std::span(file).subspan(family + kCountAt);
    Put(file, family + kLengthAt, static_cast<std::uint32_t>(content.size()));
    Put(file, family + kChecksumAt, graphics::Crc32(content));
}

TEST(VolfFamily, StandsBehindTheLayersByteForByte) {
    Document document = MasterOnly();
    const Bytes master = EncodeDocument(document);
    for (const int size : {24, 16}) {
        document::Page page;
        page.Width = page.Height = size;
        document.SetArtwork(size, page);
    }
    const Bytes file = EncodeDocument(document);
    ASSERT_GT(file.size(), master.size());
    EXPECT_TRUE(std::equal(master.begin(), master.end(), file.begin()));
    const Bytes family = {'O', 'r', 'b', 'e', 'l', 'l', 'e',  'S',  'i',  'z',  'e', 's',  //
                          1,   0,   20,  0,   0,   0,   0x01, 0xF9, 0x62, 0x8C,            //
                          2,   0,   0,   0,   16,  0,   0,    0,    0,    0,    0,   0,
                          24,  0,   0,   0,   0,   0,   0,    0};
    EXPECT_THAT(Bytes(file.begin() + static_cast<std::ptrdiff_t>(master.size()), file.end()),
                ElementsAreArray(family));
}

TEST(VolfFamily, ComesBackWhole) {
    Document saved = TwoSizes();
    saved.EditedSize = 24;
    const LoadedDocument read = Decode(EncodeDocument(saved));
    EXPECT_EQ(read.Damage, "");
    EXPECT_EQ(read.Document.EditedSize, document::Family::kMaster);
    ASSERT_EQ(read.Document.Sizes.size(), 2);
    EXPECT_EQ(read.Document.Sizes[0].Artwork.SelectedLayer, 1);
    EXPECT_FALSE(read.Document.Sizes[0].Artwork.Layers[1].Visible);
    EXPECT_EQ(EncodeDocument(read.Document), EncodeDocument(saved));
    Bytes other = EncodeDocument(MasterOnly());
    other.insert(other.end(), {'O', 'r', 'b', 'e', 'l', 'l', 'e', 'S', 'i', 'z', 'e'});
    EXPECT_EQ(Decode(other).Damage, "") << "whatever else stands there";
}

TEST(VolfFamily, DamageCostsTheSizesButNotTheMaster) {
    const Bytes master = EncodeDocument(MasterOnly());
    const std::size_t family = master.size();
    const Bytes good = EncodeDocument(TwoSizes());
    const std::string lost = "the artwork of single sizes could not be read: ";
    const auto check = [&](const Bytes& file, const std::string& problem) {
        const LoadedDocument read = Decode(file);
        EXPECT_EQ(EncodeDocument(read.Document), master);
        EXPECT_THAT(read.Damage, StartsWith(lost + problem));
    };
    for (std::size_t size = family + kVersionAt; size < good.size(); size += 7)
        check({good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size)}, "");
    Bytes file = good;
    file[family + kVersionAt] = 2;
    check(file, "a newer version has written it");
    file = good;
    file[good.size() - 40] ^= 1;
    check(file, "its checksum is wrong");

    // Its checksum right, but nonsense.
    const std::tuple<std::size_t, std::int32_t, const char*> cases[] = {
        {kCountAt, 3, "there is no size 0"},
        {kCountAt, INT32_MAX, "there is no size 0"},
        {kFirstSizeAt, 7, "there is no size 7"},
        {kFirstSizeAt, 257, "there is no size 257"},
        {kFirstSizeAt, -16, "there is no size -16"},
        {kFirstSizeAt, 24, "its sizes are not in order"},
        {kFirstSizeAt, 32, "its sizes are not in order"},
        {kFirstLayersAt, INT32_MAX, "size 16, layer 2: "},
        {kFirstLayersAt + 4 + 40, 20000, "size 16, layer 0: its picture is too large"},
    };
    for (const auto& [offset, value, problem] : cases) {
        file = good;
        Put(file, family + offset, value);
        Seal(file, family);
        check(file, problem);
    }
    file = good;
    Put(file, family + kCountAt, -1);
    Seal(file, family);
    EXPECT_TRUE(Decode(file).Document.Sizes.empty());
}

Document Named() {
    Document document = TwoSizes();
    document.Master.Layers[0].Name = "Ground";
    document.Sizes[0].Artwork.Layers[1].Name = "Gr\xC3\xBC\xC3\x9F";
    return document;
}

std::string NameIn(const document::Page& page, std::size_t layer) {
    return page.Layers.at(layer).Name;
}

TEST(VolfFamily, NamesOfLayersStandBehindTheSizesByteForByte) {
    Document document = MasterOnly();
    const std::size_t master = EncodeDocument(document).size();
    document.Master.Layers[0].Name = "Sky";
    const Bytes file = EncodeDocument(document);
    const Bytes content = {0,   0,   0,   0,   'O', 'r', 'b', 'e', 'l', 'l', 'e', 'N',  //
                           'a', 'm', 'e', 's', 1,   0,   0,   0,   0,   0,   0,   0,
                           0,   0,   0,   0,   3,   0,   0,   0,   'S', 'k', 'y'};
    EXPECT_THAT(Bytes(file.begin() + static_cast<std::ptrdiff_t>(master + kCountAt), file.end()),
                ElementsAreArray(content));
    EXPECT_EQ(NameIn(Decode(file).Document.Master, 0), "Sky");
    const LoadedDocument read = Decode(EncodeDocument(Named()));
    EXPECT_EQ(read.Damage, "");
    EXPECT_EQ(NameIn(read.Document.Master, 0), "Ground");
    EXPECT_EQ(NameIn(read.Document.Sizes[0].Artwork, 0), "");
    EXPECT_EQ(NameIn(read.Document.Sizes[0].Artwork, 1), "Gr\xC3\xBC\xC3\x9F");
}

// A layer that is left out takes its name along; what is no name costs no more than itself.
TEST(VolfFamily, NamesThatAreWrongCostNothingElse) {
    Document document = MasterOnly();
    document.Master.Layers.resize(3, document.Master.Layers[0]);
    for (const auto& [layer, name] : {std::pair(0, "a"), {1, "b"}, {2, "c"}})
        document.Master.Layers[static_cast<std::size_t>(layer)].Name = name;
    const Bytes good = EncodeDocument(document);
    document.Master.Layers.resize(1);
    document.Master.Layers[0].Name.clear();
    const std::size_t layerBytes = EncodeDocument(document).size() - 34;
    Bytes file = good;
    file[34 + layerBytes + 76 + 40] ^= 0xFF;  // in the second picture
    LoadedDocument read = Decode(file);
    ASSERT_EQ(read.Document.Master.LayerCount(), 2) << read.Damage;
    EXPECT_EQ(NameIn(read.Document.Master, 0), "a");
    EXPECT_EQ(NameIn(read.Document.Master, 1), "c");

    const std::size_t family = 34 + 3 * layerBytes, first = kCountAt + 4 + 16;
    const std::tuple<std::size_t, std::int32_t, const char*> cases[] = {
        {first - 4, INT32_MAX, "abc"}, {first - 4, 2, "ab"},
        {first - 4, -1, ""},           {first, 16, "bc"},
        {first + 4, -1, "bc"},         {first + 4, 3, "bc"},
        {first + 8, 201, ""},          {first + 8, 0, ""},
        {first + 8, INT32_MIN, ""},    {kCountAt + 4, 0, ""}};
    for (const auto& [offset, value, names] : cases) {
        file = good;
        Put(file, family + offset, value);
        Seal(file, family);
        read = Decode(file);
        EXPECT_EQ(read.Damage, "");
        std::string told;
        for (const document::IconLayer& layer : read.Document.Master.Layers)
            told += layer.Name;
        EXPECT_EQ(told, names) << offset << ": " << value;
    }
    for (std::size_t cut = family + first; cut < good.size(); ++cut) {
        file.assign(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(cut));
        Seal(file, family);
        EXPECT_EQ(Decode(file).Document.Master.LayerCount(), 3);
    }
}

TEST(VolfFamily, ANameIsOneLineOfText) {
    const std::string longest(document::kMaxLayerName, 'x');
    const std::pair<std::string, std::string> cases[] = {
        {"  Sky \t", "Sky"},
        {"a\r\nb\x7F", "ab"},
        {"\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"},
        {"a\xFF\xC3", "a"},
        {"\xC0\x80\xED\xA0\x80z", "z"},
        {"\xE2\x80\xAE"
         "evil",
         "evil"},
        {longest + "yz", longest},
        {longest.substr(1) + "\xC3\xBC", longest.substr(1)},
        {"   ", ""}};
    for (const auto& [name, clean] : cases)
        EXPECT_EQ(document::CleanLayerName(name), clean);
}

// A document of the most pixels has no room for a size.
TEST(VolfFamily, ItsPixelsCountWithTheMasters) {
    Document document = MasterOnly();
    document.Master.Width = 10240;
    document.Master.Height = 1024;
    document.Master.Layers.resize(9, document.Master.Layers[0]);
    for (document::IconLayer& layer : document.Master.Layers)
        layer.Rect = {0, 0, 10240, 1024};
    document.SetArtwork(8, document::MakePicturePage(FilledPicture(8, 8, 0xFF000000)));
    EXPECT_THROW(SaveDocument("/missing/folder", document), Error);
    const LoadedDocument read = Decode(EncodeDocument(document));
    EXPECT_EQ(read.Document.Master.LayerCount(), 9);
    EXPECT_TRUE(read.Document.Sizes.empty());
    EXPECT_NE(read.Damage, "");
}

}  // namespace
}  // namespace orbelle::formats
