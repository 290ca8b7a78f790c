#include "formats/journal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <random>

#include "formats/journal_file.h"
#include "formats/volf_store.h"
#include "graphics/errors.h"
#include "support/pictures.h"
#include "support/temporary_folder.h"

namespace orbelle::formats {
namespace {

using document::Document;
using orbelle::testing::FilledPicture;
using orbelle::testing::TemporaryFolder;

using Bytes = std::vector<std::uint8_t>;

class MemorySource : public JournalSource {
public:
    explicit MemorySource(Bytes bytes) : bytes_(std::move(bytes)) {}

    std::uint64_t Size() override { return bytes_.size(); }
    Bytes Read(std::uint64_t from, std::uint64_t count) override {
        if (from > bytes_.size() || count > bytes_.size() - from)
            throw Error("past the end");
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(from);
        return {begin, begin + static_cast<std::ptrdiff_t>(count)};
    }

private:
    Bytes bytes_;
};

std::optional<JournalEntry> Read(const Bytes& journal) {
    MemorySource source(journal);
    return ReadJournal(source);
}

document::IconLayer LayerOf(graphics::Argb color, int side = 4) {
    document::IconLayer layer;
    layer.Image = FilledPicture(side, side, color);
    PlaceAt(layer, {1, 2, side, side});
    return layer;
}

Document TwoLayers() {
    Document document;
    document.Master = {{LayerOf(0xFF102030), LayerOf(0x80405060)}, 0, 16, 12};
    document.Background = 0xFFAABBCC;
    document.Path = "/home/someone/leaf.volf";
    document.Stamp = {1, 2, 3, 4};
    return document;
}

// As .volf files keep it.
Bytes KeptPart(const Document& document) {
    return EncodeDocument(document);
}

void Extend(Bytes& journal, const Bytes& more) {
    journal.insert(journal.end(), more.begin(), more.end());
}

TEST(Journal, BringsTheDocumentBackWithItsPathAndStamp) {
    const Document document = TwoLayers();
    const auto entry = Read(JournalEncoder().Append(document, 1234));
    ASSERT_TRUE(entry);
    EXPECT_EQ(KeptPart(entry->Document), KeptPart(document));
    EXPECT_EQ(entry->Document.Path, document.Path);
    EXPECT_EQ(entry->Document.Stamp, document.Stamp);
    EXPECT_EQ(entry->Document.Master.SelectedLayer, 0);
    EXPECT_TRUE(entry->Document.Modified);
    EXPECT_EQ(entry->Time, 1234);
}

TEST(Journal, AppendsOnlyPicturesThatHaveChanged) {
    Document document = TwoLayers();
    document.Master.Layers[0].Image = FilledPicture(200, 200, 0xFF112233);
    PlaceAt(document.Master.Layers[0], {0, 0, 200, 200});
    JournalEncoder encoder;
    const Bytes first = encoder.Append(document, 1);
    EXPECT_TRUE(encoder.Append(document, 2).empty());

    document.Master.Layers[0].Rect.X = 7;
    const Bytes moved = encoder.Append(document, 3);
    document.Master.Layers[1].Image.SetPixel(0, 0, 0xFFFFFFFF);
    const Bytes drawn = encoder.Append(document, 4);
    const std::size_t pictureBytes = EncodePicture(document.Master.Layers[0]).size();
    EXPECT_LT(moved.size(), pictureBytes);
    EXPECT_GT(drawn.size(), moved.size());
    EXPECT_LT(drawn.size(), moved.size() + pictureBytes);

    Bytes journal = first;
    Extend(journal, moved);
    Extend(journal, drawn);
    EXPECT_EQ(encoder.Size(), journal.size());
    EXPECT_EQ(KeptPart(Read(journal)->Document), KeptPart(document));
}

TEST(Journal, HoldsTheArtworkOfSizes) {
    Document document = TwoLayers();
    JournalEncoder encoder;
    Bytes journal = encoder.Append(document, 1);
    document.SetArtwork(16, {{LayerOf(0xFF00FF00, 16), LayerOf(0xFF0000FF)}, 0, 16, 16});
    document.SetArtwork(8, {{}, document::kNoLayer, 8, 8});
    Extend(journal, encoder.Append(document, 2));
    EXPECT_EQ(KeptPart(Read(journal)->Document), KeptPart(document));

    document.Sizes[1].Artwork.Layers[1].Image.SetPixel(0, 0, 0xFFFFFFFF);
    document.EditedSize = 16;
    Extend(journal, encoder.Append(document, 3));
    EXPECT_EQ(KeptPart(Read(journal)->Document), KeptPart(document));
    EXPECT_EQ(Read(journal)->Document.EditedSize, document::Family::kMaster);

    document.RemoveArtwork(16);
    Extend(journal, encoder.Append(document, 4));
    EXPECT_EQ(KeptPart(Read(journal)->Document), KeptPart(document));
}

// Wherever the end of the file was lost or spoilt, the last document before that is there.
TEST(Journal, HoldsTheLastWholeDocumentOfADamagedFile) {
    Document document = TwoLayers();
    JournalEncoder encoder;
    const Bytes first = encoder.Append(document, 1);
    const Bytes before = KeptPart(document);
    document.Master.Layers[0].Image.SetPixel(1, 1, 0xFF000000);
    document.Master.Layers.push_back(LayerOf(0xFF998877));
    const Bytes second = encoder.Append(document, 2);
    for (std::size_t cut = 0; cut < second.size(); ++cut) {
        Bytes journal = first;
        journal.insert(journal.end(), second.begin(),
                       second.begin() + static_cast<std::ptrdiff_t>(cut));
        const auto entry = Read(journal);
        ASSERT_TRUE(entry) << cut;
        ASSERT_EQ(KeptPart(entry->Document), before) << cut;
        Bytes spoilt = first;
        Extend(spoilt, second);
        spoilt[first.size() + cut] ^= 0x20;
        const auto older = Read(spoilt);
        ASSERT_TRUE(older) << cut;
        ASSERT_EQ(KeptPart(older->Document), before) << cut;
    }
    for (std::size_t cut = 0; cut < first.size(); ++cut)
        EXPECT_FALSE(Read({first.begin(), first.begin() + static_cast<std::ptrdiff_t>(cut)}))
            << cut;
}

TEST(JournalFile, IsFoundOnceItsProcessIsGoneAndGoesOnAfterBeingMadeSmall) {
    const TemporaryFolder folder;
    Document document = TwoLayers();
    auto journal = std::make_unique<JournalFile>(folder / "journals");
    std::mt19937 random;
    for (int i = 0; i < 40; ++i) {
        graphics::Bitmap noise(150, 150);
        std::generate_n(noise.MutablePixels(), 150 * 150, std::ref(random));
        document.Master.Layers[1].Image = noise;
        PlaceAt(document.Master.Layers[1], {0, 0, 150, 150});
        journal->Keep(document, i);
    }
    EXPECT_TRUE(FindJournals(folder / "journals").empty());
    const auto sizeOf = [&] {
        std::uintmax_t size = 0;
        for (const auto& file : std::filesystem::directory_iterator(folder / "journals"))
            size += file.file_size();
        return size;
    };
    const std::uintmax_t before = sizeOf();
    journal->Compact();
    EXPECT_LT(sizeOf(), before / 10);
    document.Master.Layers[0].Rect.X = 99;
    journal->Keep(document, 77);
    EXPECT_TRUE(FindJournals(folder / "journals").empty());

    journal.reset();
    std::vector<FoundJournal> found = FindJournals(folder / "journals");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_TRUE(FindJournals(folder / "journals").empty());  // another program is looking at it
    EXPECT_EQ(KeptPart(found[0].Entry().Document), KeptPart(document));
    found[0].Remove();
    found.clear();
    EXPECT_TRUE(std::filesystem::is_empty(folder / "journals"));
}

TEST(JournalFile, PassesOverWhatIsNoJournal) {
    const TemporaryFolder folder;
    EXPECT_TRUE(FindJournals(folder / "nothing").empty());
    std::ofstream(folder / "empty.journal");
    std::ofstream(folder / "text.journal") << "orbelle journal 1\nno record at all";
    std::filesystem::create_directory(folder / "folder.journal");
    JournalFile journal(folder.Path());
    journal.Keep(TwoLayers(), 5);
    EXPECT_TRUE(FindJournals(folder.Path()).empty());
    journal.Remove();
    journal.Keep(TwoLayers(), 6);
}

}  // namespace
}  // namespace orbelle::formats
