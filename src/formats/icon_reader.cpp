#include "formats/icon_reader.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "graphics/codecs/dib.h"
#include "graphics/codecs/image_codecs.h"
#include "graphics/errors.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::ByteSource;
using graphics::DibCompression;
using graphics::DibHeader;
using graphics::ImageError;
using graphics::NumberAt;

constexpr std::uint64_t kDirectoryBytes = 6;
constexpr std::uint64_t kEntryBytes = 16;
constexpr int kPointerType = 2;
constexpr std::uint32_t kTopByte = 0xFF000000;
constexpr int kLeastSize = 8;
constexpr int kLargestSize = 256;

struct DirectoryEntry {
    std::uint16_t HotspotX = 0;
    std::uint16_t HotspotY = 0;
    std::uint64_t Bytes = 0;  // as far as the file has them
    std::uint64_t Place = 0;
    bool IsWhole = false;
};

DirectoryEntry EntryAt(const ByteSource& file, std::uint64_t index) {
    std::array<std::uint8_t, kEntryBytes> bytes{};
    DirectoryEntry entry;
    entry.IsWhole = file.ReadAt(kDirectoryBytes + index * kEntryBytes, bytes) == kEntryBytes;
    entry.HotspotX = NumberAt<std::uint16_t>(bytes, 4);
    entry.HotspotY = NumberAt<std::uint16_t>(bytes, 6);
    entry.Place = NumberAt<std::uint32_t>(bytes, 12);
    const std::uint64_t there = file.Size() - std::min(entry.Place, file.Size());
    entry.Bytes = std::min<std::uint64_t>(NumberAt<std::uint32_t>(bytes, 8), there);
    return entry;
}

// How many bytes may still be gone through. Entries may share theirs, and a file can claim many.
class Work {
public:
    explicit Work(const ByteSource& file) : left_(kAtLeast + kTimes * file.Size()) {}

    void Spend(std::uint64_t bytes) {
        if (bytes > left_)
            throw ImageError("the images of the icon are too large together");
        left_ -= bytes;
    }

private:
    static constexpr std::uint64_t kAtLeast = std::uint64_t{1} << 20;
    static constexpr std::uint64_t kTimes = 8;

    std::uint64_t left_;
};

bool IsPng(const ByteSource& file, std::uint64_t place) {
    constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    std::array<std::uint8_t, 8> start{};
    file.ReadAt(place, start);
    return start == kSignature;
}

std::uint32_t BigEndian(std::span<const std::uint8_t> bytes, std::size_t place) {
    std::uint32_t number = 0;
    for (std::size_t i = place; i < place + 4; ++i)
        number = number << 8 | bytes[i];
    return number;
}

// What the directory says, or up to the PNG's last chunk where that is more.
std::uint64_t PngBytes(const ByteSource& file, const DirectoryEntry& entry, Work& work) {
    constexpr std::uint64_t kAroundChunk = 12;  // length, name, checksum
    std::uint64_t end = entry.Place + 8;
    while (end < file.Size()) {
        std::array<std::uint8_t, 8> head{};
        file.ReadAt(end, head);
        end += kAroundChunk + BigEndian(head, 0);
        work.Spend(kAroundChunk);
        if (std::memcmp(head.data() + 4, "IEND", 4) == 0 && end <= file.Size())
            return std::max(entry.Bytes, end - entry.Place);
    }
    return entry.Bytes;
}

void ReadPng(const ByteSource& file, const DirectoryEntry& entry, graphics::PixelBudget& budget,
             Work& work, IconEntryImage& image) {
    std::array<std::uint8_t, 26> start{};  // signature, and the first chunk up to the colour type
    file.ReadAt(entry.Place, start);
    const std::uint32_t width = BigEndian(start, 16);
    const std::uint32_t height = BigEndian(start, 20);
    constexpr int kChannels[] = {1, 0, 3, 1, 2, 0, 4};  // by colour type
    image.Bits = start[24] * (start[25] < std::size(kChannels) ? kChannels[start[25]] : 0);
    if (graphics::IsBitmapSizeAllowed(width, height)) {
        image.Width = static_cast<int>(width);
        image.Height = static_cast<int>(height);
    }
    const std::uint64_t bytes = PngBytes(file, entry, work);
    work.Spend(bytes);
    // Programs that show icons take these numbers as sRGB, whatever the PNG says.
    image.Image = graphics::DecodePng(graphics::PartOfSource(file, entry.Place, bytes), budget,
                                      graphics::ColorHandling::Keep);
    image.Format = IconEntryFormat::Png;
}

// Where pixels begin behind a palette. One that only helps to show true colours counts if the
// entry has room for it, else its length is none.
std::uint64_t PixelsPlace(const DibHeader& header, std::uint64_t entryEnd) {
    const auto after = [&](std::uint64_t colors) {
        return header.PaletteAt + colors * header.PaletteEntryBytes;
    };
    if (header.Bits <= 8)
        return after(header.ColorsUsed ? header.ColorsUsed : 1u << header.Bits);
    const std::uint64_t pixels = after(header.ColorsUsed);
    const bool fits =
        pixels + static_cast<std::uint64_t>(header.Stride() * header.Height) <= entryEnd;
    return fits ? pixels : header.PaletteAt;
}

// The byte that no colour has is alpha.
std::uint32_t AlphaMaskOf(const DibHeader& header) {
    const graphics::ChannelMasks& masks = header.Masks;
    const bool isOwn = header.Compression != DibCompression::None;
    if (isOwn && masks.Alpha != 0)
        return masks.Alpha;
    const bool isTopFree = !isOwn || ((masks.Red | masks.Green | masks.Blue) & kTopByte) == 0;
    return header.Bits == 32 && isTopFree ? kTopByte : 0;
}

bool HasAlpha(const graphics::Bitmap& picture) {
    const Argb* pixels = picture.Pixels();
    return std::any_of(pixels, pixels + std::int64_t{picture.Width()} * picture.Height(),
                       [](Argb pixel) { return graphics::AlphaOf(pixel) != 0; });
}

// One bit a pixel from the left, in the order of the rows of colours, each row a multiple of 4
// bytes; set where nothing shows. Bytes from `end` on are zero. The picture is opaque.
void ApplyMask(const ByteSource& file, const DibHeader& header, std::uint64_t end,
               graphics::Bitmap& picture) {
    Argb* pixels = picture.MutablePixels();
    std::vector<std::uint8_t> mask(static_cast<std::size_t>((header.Width + 31) / 32 * 4));
    std::uint64_t place =
        header.PixelsAt + static_cast<std::uint64_t>(header.Stride() * header.Height);
    for (std::int64_t y = 0; y < header.Height && place < end; ++y, place += mask.size()) {
        const std::uint64_t there = std::min<std::uint64_t>(mask.size(), end - place);
        std::ranges::fill(mask, 0);
        file.ReadAt(place, std::span(mask).first(static_cast<std::size_t>(there)));
        Argb* row = header.RowIn(pixels, y);
        for (std::int64_t left = 0; left < header.Width; left += 8) {
            const unsigned eight = mask[static_cast<std::size_t>(left / 8)];
            for (std::int64_t x = left; eight != 0 && x < std::min(left + 8, header.Width); ++x)
                if (eight << (x - left) & 0x80)
                    row[x] = graphics::SetAlphaByte(row[x], 0);
        }
    }
}

void MakeOpaque(graphics::Bitmap& picture) {
    Argb* pixels = picture.MutablePixels();
    std::for_each_n(pixels, std::int64_t{picture.Width()} * picture.Height(),
                    [](Argb& pixel) { pixel = graphics::SetAlphaByte(pixel, 255); });
}

void ReadBitmap(const ByteSource& file, const DirectoryEntry& entry, graphics::PixelBudget& budget,
                IconEntryImage& image) {
    graphics::DibBytes bytes(file);
    DibHeader header = graphics::ReadDibHeader(bytes, entry.Place, 2);
    image.Width = static_cast<int>(header.Width);
    image.Height = static_cast<int>(header.Height);
    image.Bits = static_cast<int>(header.Bits);
    if (header.IsRunLengthCoded())
        throw ImageError("the bitmap is of a kind that icons do not have");
    const std::uint64_t entryEnd = entry.Place + entry.Bytes;
    header.PixelsAt = PixelsPlace(header, entryEnd);
    header.Masks.Alpha = AlphaMaskOf(header);
    graphics::RequireDibRows(bytes, header);
    budget.Take(header.Width, header.Height);

    graphics::Bitmap picture(image.Width, image.Height);
    graphics::ReadDibRows(bytes, header, picture.MutablePixels());
    const bool hasChannel = header.Masks.Alpha != 0;
    if (!hasChannel || !HasAlpha(picture)) {
        if (hasChannel)
            MakeOpaque(picture);
        // Many directories tell a wrong length, even one that is shorter than the pixels.
        const std::uint64_t pixelsEnd =
            header.PixelsAt + static_cast<std::uint64_t>(header.Stride() * header.Height);
        ApplyMask(file, header, entryEnd >= pixelsEnd ? entryEnd : file.Size(), picture);
    }
    image.Image = std::move(picture);
    image.Format = IconEntryFormat::Bitmap;
}

}  // namespace

bool IsIcon(const ByteSource& file) {
    const auto type = file.NumberAt<std::uint16_t>(2);
    return file.Size() >= kDirectoryBytes && file.NumberAt<std::uint16_t>(0) == 0 &&
           (type == 1 || type == kPointerType);
}

std::vector<IconEntryImage> DecodeIcon(const ByteSource& file) {
    const auto reserved = file.NumberAt<std::uint16_t>(0);
    const auto type = file.NumberAt<std::uint16_t>(2);
    const auto count = file.NumberAt<std::uint16_t>(4);
    if (reserved != 0 || type > kPointerType)
        throw ImageError("not a Windows icon");
    if (count == 0)
        throw ImageError("the icon holds no image");

    graphics::PixelBudget budget;
    Work work(file);
    std::vector<IconEntryImage> images(count);
    for (std::uint64_t i = 0; i < count; ++i) {
        const DirectoryEntry entry = EntryAt(file, i);
        IconEntryImage& image = images[i];
        image.Bytes = entry.Bytes;
        if (type == kPointerType)
            image.Hotspot = {entry.HotspotX, entry.HotspotY};
        // Not thrown: a file of a few bytes can claim 65535 of these.
        if (!entry.IsWhole) {
            image.Problem = "the icon's directory is cut short";
            continue;
        }
        try {
            if (IsPng(file, entry.Place))
                ReadPng(file, entry, budget, work, image);
            else
                ReadBitmap(file, entry, budget, image);
        } catch (const ImageError& error) {
            image.Problem = error.what();
        }
    }
    return images;
}

std::vector<IconEntryImage> ReadIconFile(const std::filesystem::path& path) {
    const graphics::FileSource file(path);
    try {
        std::vector<IconEntryImage> entries = DecodeIcon(file);
        file.RequireWasRead();
        return entries;
    } catch (const ImageError& error) {
        file.RequireWasRead();
        throw graphics::FileError(path, error.what());
    }
}

std::vector<std::uint8_t> EntryBytes(const ByteSource& file, int index, std::uint64_t maxBytes) {
    if (index < 0 || index >= file.NumberAt<std::uint16_t>(4))
        return {};
    const DirectoryEntry entry = EntryAt(file, static_cast<std::uint64_t>(index));
    std::uint64_t size = entry.Bytes;
    if (IsPng(file, entry.Place)) {
        Work work(file);
        size = PngBytes(file, entry, work);
    }
    if (size > maxBytes)
        return {};
    std::vector<std::uint8_t> bytes(size);
    bytes.resize(file.ReadAt(entry.Place, bytes));
    return bytes;
}

bool IsIconSize(const IconEntryImage& entry) {
    return !entry.IsBad() && entry.Width == entry.Height && entry.Width >= kLeastSize &&
           entry.Width <= kLargestSize;
}

}  // namespace orbelle::formats
