#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <utility>

#include "graphics/codecs/image_files.h"
#include "graphics/codecs/png_parts.h"

namespace orbelle::graphics {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int kTryLevel = 6;
constexpr int kBestLevel = 12;
// Of all the ways to filter, so many are compressed as well as can be.
constexpr std::size_t kMostTried = 2;
constexpr std::size_t kMaxColors = 256;
constexpr int kFilters = 5;

// What is the same in all pixels that can be seen.
struct Survey {
    bool IsOpaque = true;
    bool IsGray = true;
    std::vector<Argb> Colors;  // rising by alpha; empty: more than a palette holds
};

std::vector<Argb> VisiblePixels(const Bitmap& image) {
    const auto count =
        static_cast<std::size_t>(image.Width()) * static_cast<std::size_t>(image.Height());
    std::vector<Argb> pixels(image.Pixels(), image.Pixels() + count);
    for (Argb& pixel : pixels) {
        if (AlphaOf(pixel) == 0)
            pixel = 0;
    }
    return pixels;
}

Survey SurveyOf(const std::vector<Argb>& pixels) {
    Survey survey;
    std::vector<Argb> distinct = pixels;
    std::ranges::sort(distinct);
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    for (const Argb color : distinct) {
        survey.IsOpaque &= AlphaOf(color) == 255;
        survey.IsGray &= RedOf(color) == GreenOf(color) && GreenOf(color) == BlueOf(color);
    }
    if (distinct.size() <= kMaxColors)
        survey.Colors = std::move(distinct);
    return survey;
}

void AppendColor(Bytes& bytes, Argb color) {
    for (const unsigned channel : {RedOf(color), GreenOf(color), BlueOf(color)})
        bytes.push_back(static_cast<std::uint8_t>(channel));
}

void AppendAlpha(Bytes& bytes, Argb color) {
    bytes.push_back(static_cast<std::uint8_t>(AlphaOf(color)));
}

// Rows of bytes, not filtered yet.
struct Raw {
    PngForm Form;
    std::size_t BytesPerPixel = 1;  // of what a filter takes for the pixel to the left
    std::size_t Stride = 0;
    Bytes Rows;
};

// `write` puts a pixel's channels.
template <typename Write>
Raw WholeBytes(PngForm form, std::size_t channels, const std::vector<Argb>& pixels,
               const Write& write) {
    Raw raw{std::move(form), channels, 0, {}};
    raw.Stride = static_cast<std::size_t>(raw.Form.Width) * channels;
    raw.Rows.reserve(pixels.size() * channels);
    for (const Argb pixel : pixels)
        write(raw.Rows, pixel);
    return raw;
}

Raw TrueColors(PngForm form, const Survey& survey, const std::vector<Argb>& pixels) {
    const bool hasAlpha = !survey.IsOpaque;
    if (survey.IsGray) {
        form.Colors = hasAlpha ? PngColors::GrayAlpha : PngColors::Gray;
        return WholeBytes(std::move(form), hasAlpha ? 2 : 1, pixels, [&](Bytes& out, Argb pixel) {
            out.push_back(static_cast<std::uint8_t>(RedOf(pixel)));
            if (hasAlpha)
                AppendAlpha(out, pixel);
        });
    }
    form.Colors = hasAlpha ? PngColors::RgbAlpha : PngColors::Rgb;
    return WholeBytes(std::move(form), hasAlpha ? 4 : 3, pixels, [&](Bytes& out, Argb pixel) {
        AppendColor(out, pixel);
        if (hasAlpha)
            AppendAlpha(out, pixel);
    });
}

int DepthFor(std::size_t colors) {
    int depth = 1;
    while (std::size_t{1} << depth < colors)
        depth *= 2;
    return depth;
}

Raw Palette(PngForm form, const Survey& survey, const std::vector<Argb>& pixels) {
    std::map<Argb, std::uint8_t> places;
    for (const Argb color : survey.Colors) {
        places.emplace(color, static_cast<std::uint8_t>(places.size()));
        AppendColor(form.Palette, color);
        if (AlphaOf(color) != 255)
            AppendAlpha(form.Alphas, color);
    }
    form.Colors = PngColors::Palette;
    form.Depth = DepthFor(survey.Colors.size());
    const auto width = static_cast<std::size_t>(form.Width);
    const auto depth = static_cast<std::size_t>(form.Depth);
    Raw raw{std::move(form), 1, (width * depth + 7) / 8, {}};
    raw.Rows.resize(raw.Stride * static_cast<std::size_t>(raw.Form.Height));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::size_t bit = i % width * depth;
        raw.Rows[i / width * raw.Stride + bit / 8] |=
            static_cast<std::uint8_t>(places[pixels[i]] << (8 - depth - bit % 8));
    }
    return raw;
}

// The one of the three that a + b - c is nearest to.
int Paeth(int left, int above, int corner) {
    const int toLeft = std::abs(above - corner);
    const int toAbove = std::abs(left - corner);
    const int toCorner = std::abs(left + above - 2 * corner);
    if (toLeft <= toAbove && toLeft <= toCorner)
        return left;
    return toAbove <= toCorner ? above : corner;
}

int Guess(int filter, int left, int above, int corner) {
    switch (filter) {
        case 1:
            return left;
        case 2:
            return above;
        case 3:
            return (left + above) / 2;
        case 4:
            return Paeth(left, above, corner);
        default:
            return 0;
    }
}

void FilterRow(const Raw& raw, std::size_t row, int filter, std::uint8_t* out) {
    const std::uint8_t* now = raw.Rows.data() + row * raw.Stride;
    const std::uint8_t* before = row > 0 ? now - raw.Stride : nullptr;
    const std::size_t step = raw.BytesPerPixel;
    *out++ = static_cast<std::uint8_t>(filter);
    for (std::size_t i = 0; i < raw.Stride; ++i) {
        const int left = i >= step ? now[i - step] : 0;
        const int above = before ? before[i] : 0;
        const int corner = before && i >= step ? before[i - step] : 0;
        *out++ = static_cast<std::uint8_t>(now[i] - Guess(filter, left, above, corner));
    }
}

// Small differences, up and down, are what compresses well.
std::uint64_t Unrest(const std::uint8_t* row, std::size_t count) {
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += row[i] < 128 ? row[i] : 256U - row[i];
    return sum;
}

// One filter for all rows, or for each row the one that leaves the least unrest.
Bytes Filtered(const Raw& raw, std::optional<int> filter) {
    const auto height = static_cast<std::size_t>(raw.Form.Height);
    const std::size_t length = raw.Stride + 1;
    Bytes rows(length * height);
    Bytes tried(length);
    for (std::size_t y = 0; y < height; ++y) {
        std::uint8_t* out = rows.data() + y * length;
        FilterRow(raw, y, filter.value_or(0), out);
        if (filter)
            continue;
        std::uint64_t least = Unrest(out + 1, raw.Stride);
        for (int other = 1; other < kFilters; ++other) {
            FilterRow(raw, y, other, tried.data());
            const std::uint64_t unrest = Unrest(tried.data() + 1, raw.Stride);
            if (unrest < least) {
                least = unrest;
                std::ranges::copy(tried, out);
            }
        }
    }
    return rows;
}

Bytes Smallest(const Raw& raw) {
    std::vector<std::pair<std::size_t, Bytes>> ways;
    const auto add = [&](std::optional<int> filter) {
        Bytes rows = Filtered(raw, filter);
        const std::size_t size = Deflate(rows, kTryLevel).size();
        ways.emplace_back(size, std::move(rows));
    };
    add(std::nullopt);
    for (int filter = 0; filter < kFilters; ++filter)
        add(filter);
    std::ranges::sort(ways, {}, &std::pair<std::size_t, Bytes>::first);
    Bytes best;
    for (std::size_t i = 0; i < std::min(kMostTried, ways.size()); ++i) {
        Bytes packed = Deflate(ways[i].second, kBestLevel);
        if (best.empty() || packed.size() < best.size())
            best = std::move(packed);
    }
    return AssemblePng(raw.Form, best);
}

}  // namespace

std::vector<std::uint8_t> EncodeSmallPng(const Bitmap& image) {
    if (image.IsEmpty())
        return {};
    const std::vector<Argb> pixels = VisiblePixels(image);
    const Survey survey = SurveyOf(pixels);
    const PngForm form{.Width = image.Width(), .Height = image.Height()};
    Bytes smallest = Smallest(TrueColors(form, survey, pixels));
    if (!survey.Colors.empty()) {
        Bytes withPalette = Smallest(Palette(form, survey, pixels));
        if (withPalette.size() < smallest.size())
            smallest = std::move(withPalette);
    }
    return smallest;
}

std::vector<std::uint8_t> EncodePng(const Bitmap& image, PngPacking packing) {
    return packing == PngPacking::Small ? EncodeSmallPng(image) : EncodePng(image);
}

}  // namespace orbelle::graphics
