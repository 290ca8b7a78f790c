#include "formats/journal.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "formats/volf_reader.h"
#include "formats/volf_store.h"
#include "graphics/byte_source.h"
#include "graphics/checksum.h"
#include "graphics/little_endian.h"
#include "graphics/path_text.h"

namespace orbelle::formats {
namespace {

using document::Document;
using document::IconLayer;
using graphics::Append;
using graphics::ByteReader;

using Bytes = std::vector<std::uint8_t>;

constexpr std::string_view kHead = "orbelle journal 1\n";
constexpr std::uint64_t kNoPicture = 0;

// What no record of ours is larger than.
constexpr std::uint32_t kMaxContent = std::uint32_t{256} << 20;

// So many documents are tried, from the last one on, before a journal is given up.
constexpr int kMaxTries = 16;

enum class Kind : std::uint32_t { Picture = 1, State = 2 };

// Kind, size and checksum of what follows.
constexpr std::size_t kRecordHeadBytes = 12;

void AppendRecord(Bytes& journal, Kind kind, std::span<const std::uint8_t> content) {
    Append<std::uint32_t>(journal, static_cast<std::uint32_t>(kind));
    Append<std::uint32_t>(journal, static_cast<std::uint32_t>(content.size()));
    Append<std::uint32_t>(journal, graphics::Crc32(content));
    journal.insert(journal.end(), content.begin(), content.end());
}

// All but the time.
Bytes EncodeState(const Document& document, const std::vector<std::uint64_t>& numbers) {
    const DocumentFrame frame = EncodeFrame(document);
    const std::string path = graphics::Utf8Of(document.Path);
    Bytes state;
    Append<std::uint32_t>(state, static_cast<std::uint32_t>(path.size()));
    state.insert(state.end(), path.begin(), path.end());
    Append<std::uint64_t>(state, document.Stamp.Device);
    Append<std::uint64_t>(state, document.Stamp.Inode);
    Append<std::uint64_t>(state, document.Stamp.Size);
    Append<std::int64_t>(state, document.Stamp.ModifiedNanoseconds);
    Append<std::int32_t>(state, document.Master.SelectedLayer);
    Append<std::uint32_t>(state, static_cast<std::uint32_t>(numbers.size()));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        Append<std::uint32_t>(state, frame.PictureAt[i]);
        Append<std::uint64_t>(state, numbers[i]);
    }
    state.insert(state.end(), frame.Bytes.begin(), frame.Bytes.end());
    return state;
}

struct Record {
    Kind Type = Kind::Picture;
    std::uint32_t Checksum = 0;
    JournalEncoder::Part Content;
};

// All records that are there whole, as far as their heads tell.
std::vector<Record> FindRecords(JournalSource& source) {
    std::vector<Record> records;
    const std::uint64_t end = source.Size();
    std::uint64_t place = kHead.size();
    while (place + kRecordHeadBytes <= end) {
        const Bytes bytes = source.Read(place, kRecordHeadBytes);
        ByteReader head(bytes);
        const auto kind = head.Read<std::uint32_t>();
        const auto size = head.Read<std::uint32_t>();
        const auto checksum = head.Read<std::uint32_t>();
        place += kRecordHeadBytes;
        const bool isKnown = kind == static_cast<std::uint32_t>(Kind::Picture) ||
                             kind == static_cast<std::uint32_t>(Kind::State);
        if (!isKnown || size > kMaxContent || size > end - place)
            break;
        records.push_back({static_cast<Kind>(kind), checksum, {place, size}});
        place += size;
    }
    return records;
}

// Throws Error when its content is not what was written.
Bytes ReadContent(JournalSource& source, const Record& record) {
    Bytes content = source.Read(record.Content.From, record.Content.Size);
    if (graphics::Crc32(content) != record.Checksum)
        throw Error("the journal is damaged");
    return content;
}

// Where the journal holds the picture of each number.
using PictureRecords = std::map<std::uint64_t, Record>;

PictureRecords NumberPictures(JournalSource& source, const std::vector<Record>& records) {
    PictureRecords pictures;
    for (const Record& record : records) {
        if (record.Type != Kind::Picture || record.Content.Size < sizeof(std::uint64_t))
            continue;
        const Bytes number = source.Read(record.Content.From, sizeof(std::uint64_t));
        pictures.insert_or_assign(graphics::NumberAt<std::uint64_t>(number, 0), record);
    }
    return pictures;
}

Bytes ReadPicture(JournalSource& source, const PictureRecords& pictures, std::uint64_t number) {
    if (number == kNoPicture)
        return {};
    const auto found = pictures.find(number);
    if (found == pictures.end())
        throw Error("a picture is missing in the journal");
    Bytes picture = ReadContent(source, found->second);
    picture.erase(picture.begin(), picture.begin() + sizeof number);
    return picture;
}

JournalEntry ReadState(JournalSource& source, const Record& record,
                       const PictureRecords& pictures) {
    const Bytes content = ReadContent(source, record);
    ByteReader state(content);
    JournalEntry entry;
    entry.Time = state.Read<std::int64_t>();
    const auto name = state.Take(state.Read<std::uint32_t>());
    graphics::FileStamp stamp;
    stamp.Device = state.Read<std::uint64_t>();
    stamp.Inode = state.Read<std::uint64_t>();
    stamp.Size = state.Read<std::uint64_t>();
    stamp.ModifiedNanoseconds = state.Read<std::int64_t>();
    const auto selected = state.Read<std::int32_t>();
    const auto count = state.Read<std::uint32_t>();
    DocumentFrame frame;
    std::vector<Bytes> pngs;
    for (std::uint32_t i = 0; i < count; ++i) {
        frame.PictureAt.push_back(state.Read<std::uint32_t>());
        pngs.push_back(ReadPicture(source, pictures, state.Read<std::uint64_t>()));
    }
    const auto rest = state.TakeRest();
    frame.Bytes.assign(rest.begin(), rest.end());
    const Bytes file = FillFrame(frame, pngs);
    // Its checksums leave nothing to damage; what is there is better than nothing.
    entry.Document = DecodeDocument(graphics::MemorySource(file)).Document;
    entry.Document.Path =
        graphics::PathOfUtf8({reinterpret_cast<const char*>(name.data()), name.size()});
    entry.Document.Stamp = stamp;
    entry.Document.Modified = true;
    if (selected >= 0 && selected < entry.Document.Master.LayerCount())
        entry.Document.Master.SelectedLayer = selected;
    return entry;
}

}  // namespace

std::uint64_t JournalEncoder::NumberOf(const IconLayer& layer, std::vector<Picture>& pictures,
                                       Bytes& bytes) {
    if (layer.Image.IsEmpty())
        return kNoPicture;
    const auto isOfLayer = [&](const Picture& picture) {
        return picture.Image.SharesPixelsWith(layer.Image) && picture.Width == layer.ImageWidth &&
               picture.Height == layer.ImageHeight;
    };
    if (const auto found = std::ranges::find_if(pictures, isOfLayer); found != pictures.end())
        return found->Number;
    const auto known = std::ranges::find_if(pictures_, isOfLayer);
    if (known != pictures_.end()) {
        pictures.push_back(*known);
        return known->Number;
    }
    Bytes content;
    graphics::Append<std::uint64_t>(content, ++lastNumber_);
    const Bytes png = EncodePicture(layer);
    content.insert(content.end(), png.begin(), png.end());
    const std::uint64_t from = size_ + bytes.size();
    AppendRecord(bytes, Kind::Picture, content);
    pictures.push_back({layer.Image,
                        layer.ImageWidth,
                        layer.ImageHeight,
                        lastNumber_,
                        {from, size_ + bytes.size() - from}});
    return lastNumber_;
}

Bytes JournalEncoder::Append(const Document& document, std::int64_t time) {
    Bytes bytes;
    if (size_ == 0)
        bytes.assign(kHead.begin(), kHead.end());
    std::vector<Picture> pictures;
    std::vector<std::uint64_t> numbers;
    for (const IconLayer* layer : LayersOf(document))
        numbers.push_back(NumberOf(*layer, pictures, bytes));
    Bytes state = EncodeState(document, numbers);
    if (state == state_)
        return {};
    Bytes content;
    graphics::Append<std::int64_t>(content, time);
    content.insert(content.end(), state.begin(), state.end());
    const std::uint64_t from = size_ + bytes.size();
    AppendRecord(bytes, Kind::State, content);
    pictures_ = std::move(pictures);
    state_ = std::move(state);
    size_ += bytes.size();
    stateRecord_ = {from, size_ - from};
    return bytes;
}

std::vector<JournalEncoder::Part> JournalEncoder::Needed() const {
    if (size_ == 0)
        return {};
    std::vector<Part> parts{{0, kHead.size()}};
    for (const Picture& picture : pictures_)
        parts.push_back(picture.Record);
    parts.push_back(stateRecord_);
    return parts;
}

void JournalEncoder::Compacted() {
    std::uint64_t place = kHead.size();
    const auto move = [&place](Part& part) {
        part.From = place;
        place += part.Size;
    };
    for (Picture& picture : pictures_)
        move(picture.Record);
    move(stateRecord_);
    size_ = place;
}

std::uint64_t JournalEncoder::NeededSize() const {
    std::uint64_t size = 0;
    for (const Part& part : Needed())
        size += part.Size;
    return size;
}

std::optional<JournalEntry> ReadJournal(JournalSource& source) {
    if (source.Size() < kHead.size() ||
        !std::ranges::equal(source.Read(0, kHead.size()), kHead, [](std::uint8_t a, char b) {
            return a == static_cast<std::uint8_t>(b);
        }))
        return std::nullopt;
    const std::vector<Record> records = FindRecords(source);
    const PictureRecords pictures = NumberPictures(source, records);
    int tries = 0;
    for (auto record = records.rbegin(); record != records.rend() && tries < kMaxTries; ++record) {
        if (record->Type != Kind::State)
            continue;
        ++tries;
        try {
            return ReadState(source, *record, pictures);
        } catch (const Error&) {
            // An older one may be whole.
        }
    }
    return std::nullopt;
}

}  // namespace orbelle::formats
