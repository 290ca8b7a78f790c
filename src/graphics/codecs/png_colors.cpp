#include "graphics/codecs/png_colors.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "graphics/checksum.h"
#include "graphics/codecs/inflate.h"

namespace orbelle::graphics {
namespace {

constexpr std::uint64_t kSignatureBytes = 8;
constexpr std::uint64_t kNumberBytes = 4;  // of a chunk's length, name and checksum
// Pictures have a few before their pixels; a file of empty ones would take its time.
constexpr int kMaxChunks = 1000;
constexpr std::uint64_t kMaxNameBytes = 79;  // of a profile
// What a decoder can make something of: 0.1 to 10.
constexpr double kLeastGamma = 0.1;
constexpr double kMostGamma = 10;

std::uint32_t NumberIn(const ByteSource& source, std::uint64_t place) {
    std::array<std::uint8_t, 4> bytes{};
    source.ReadAt(place, bytes);
    return std::uint32_t{bytes[0]} << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3];
}

// Numbers of colours stand in a file as hundred thousandths.
double FractionIn(const ByteSource& source, std::uint64_t place) {
    return NumberIn(source, place) / 100000.0;
}

// The chunks in question, each with its contents.
struct ColorChunks {
    std::optional<PartOfSource> Profile;
    bool IsSrgb = false;
    std::optional<double> Gamma;
    std::optional<Chromaticities> Primaries;
};

Chromaticities ReadPrimaries(const ByteSource& chunk) {
    Chromaticities read;
    std::uint64_t place = 0;
    for (auto* point : {&read.White, &read.Red, &read.Green, &read.Blue}) {
        for (double& number : *point) {
            number = FractionIn(chunk, place);
            place += kNumberBytes;
        }
    }
    return read;
}

// Points that no light can have would make colours of nothing.
bool ArePossible(const Chromaticities& primaries) {
    const auto isPossible = [](const double(&point)[2]) {
        return point[0] >= 0 && point[1] > 0 && point[0] + point[1] <= 1;
    };
    return isPossible(primaries.White) && isPossible(primaries.Red) &&
           isPossible(primaries.Green) && isPossible(primaries.Blue);
}

void TakeChunk(std::string_view name, const PartOfSource& chunk, ColorChunks& found) {
    constexpr std::uint64_t kPrimariesBytes = 8 * kNumberBytes;
    if (name == "iCCP" && !found.Profile)
        found.Profile = chunk;
    if (name == "sRGB" && chunk.Size() == 1)
        found.IsSrgb = true;
    if (name == "gAMA" && chunk.Size() == kNumberBytes && !found.Gamma) {
        const double gamma = FractionIn(chunk, 0);
        if (gamma >= kLeastGamma && gamma <= kMostGamma)
            found.Gamma = gamma;
    }
    if (name == "cHRM" && chunk.Size() == kPrimariesBytes && !found.Primaries) {
        const Chromaticities primaries = ReadPrimaries(chunk);
        if (ArePossible(primaries))
            found.Primaries = primaries;
    }
}

ColorChunks FindChunks(const ByteSource& file) {
    ColorChunks found;
    std::uint64_t place = kSignatureBytes;
    for (int i = 0; i < kMaxChunks; ++i) {
        const std::uint64_t length = NumberIn(file, place);
        std::array<char, kNumberBytes> letters{};
        file.ReadAt(place + kNumberBytes,
                    {reinterpret_cast<std::uint8_t*>(letters.data()), kNumberBytes});
        const std::string_view name(letters.data(), letters.size());
        const std::uint64_t end = place + 2 * kNumberBytes + length;
        if (name == "IDAT" || end + kNumberBytes > file.Size())
            break;
        const bool isOfColors =
            name == "iCCP" || name == "sRGB" || name == "gAMA" || name == "cHRM";
        // The checksum is of name and contents.
        if (isOfColors && length <= kMaxProfileBytes &&
            Crc32(PartOfSource(file, place + kNumberBytes, kNumberBytes + length)) ==
                NumberIn(file, end))
            TakeChunk(name, PartOfSource(file, place + 2 * kNumberBytes, length), found);
        place = end + kNumberBytes;
    }
    return found;
}

// A name with a zero at its end, the kind of compression, the packed profile.
std::optional<ColorConversion> ProfileIn(const ByteSource& chunk, FileChannels channels,
                                         std::int64_t pixels) {
    std::uint64_t end = 0;
    while (end <= kMaxNameBytes && chunk.NumberAt<std::uint8_t>(end) != 0)
        ++end;
    const std::uint64_t begin = end + 2;
    if (end > kMaxNameBytes || begin >= chunk.Size())
        return std::nullopt;
    const auto profile =
        Inflate(PartOfSource(chunk, begin, chunk.Size() - begin), kMaxProfileBytes);
    return profile ? ColorConversion::OfProfile(*profile, channels, pixels) : std::nullopt;
}

}  // namespace

ColorConversion PngColors(const ByteSource& file, FileChannels channels, std::int64_t pixels) {
    const ColorChunks found = FindChunks(file);
    if (found.Profile) {
        if (auto conversion = ProfileIn(*found.Profile, channels, pixels))
            return *std::move(conversion);
    }
    if (found.IsSrgb || (!found.Gamma && !found.Primaries))
        return {};
    return ColorConversion::OfGamma(found.Gamma, found.Primaries.value_or(Chromaticities()),
                                    channels);
}

}  // namespace orbelle::graphics
