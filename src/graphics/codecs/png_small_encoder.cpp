#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <span>
#include <utility>

#include "graphics/codecs/image_files.h"
#include "graphics/codecs/png_parts.h"
#include "graphics/codecs/png_rows.h"
#include "graphics/parallel.h"

namespace orbelle::graphics {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int kTryLevel = 6;
// On icons of 256 the last level gains 0.7 % for nearly twice the time; what is small is done soon.
constexpr int kBestLevel = 11;
constexpr int kLastLevel = 12;
constexpr std::size_t kMostAtLastLevel = 128 << 10;
constexpr std::size_t kMaxColors = 256;
constexpr PngFilter kAllFilters[] = {PngFilter::None, PngFilter::Left, PngFilter::Above,
                                     PngFilter::Mean, PngFilter::Paeth};

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
    std::set<Argb> distinct;
    Argb last = 0;
    for (const Argb color : pixels) {
        survey.IsOpaque &= AlphaOf(color) == 255;
        survey.IsGray &= RedOf(color) == GreenOf(color) && GreenOf(color) == BlueOf(color);
        if (distinct.size() <= kMaxColors && (color != last || distinct.empty()))
            distinct.insert(color);
        last = color;
    }
    if (distinct.size() <= kMaxColors)
        survey.Colors.assign(distinct.begin(), distinct.end());
    return survey;
}

void AppendColor(Bytes& bytes, Argb color) {
    for (const unsigned channel : {RedOf(color), GreenOf(color), BlueOf(color)})
        bytes.push_back(static_cast<std::uint8_t>(channel));
}

void AppendAlpha(Bytes& bytes, Argb color) {
    bytes.push_back(static_cast<std::uint8_t>(AlphaOf(color)));
}

// `write` puts a pixel's channels.
template <typename Write>
PngRows WholeBytes(PngForm form, std::size_t channels, const std::vector<Argb>& pixels,
                   const Write& write) {
    PngRows rows{std::move(form), channels, 0, {}};
    rows.Stride = static_cast<std::size_t>(rows.Form.Width) * channels;
    rows.Bytes.reserve(pixels.size() * channels);
    for (const Argb pixel : pixels)
        write(rows.Bytes, pixel);
    return rows;
}

PngRows TrueColors(PngForm form, const Survey& survey, const std::vector<Argb>& pixels) {
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

PngRows Palette(PngForm form, const Survey& survey, const std::vector<Argb>& pixels) {
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
    PngRows rows{std::move(form), 1, (width * depth + 7) / 8, {}};
    rows.Bytes.resize(rows.Stride * static_cast<std::size_t>(rows.Form.Height));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::size_t bit = i % width * depth;
        rows.Bytes[i / width * rows.Stride + bit / 8] |=
            static_cast<std::uint8_t>(places[pixels[i]] << (8 - depth - bit % 8));
    }
    return rows;
}

// Of what the file has beside the rows, what depends on the form.
std::size_t FileBytes(const PngForm& form) {
    constexpr std::size_t kAroundChunk = 12;
    std::size_t bytes = form.Palette.empty() ? 0 : kAroundChunk + form.Palette.size();
    if (!form.Alphas.empty())
        bytes += kAroundChunk + form.Alphas.size();
    return bytes;
}

// A form of the picture and how its rows are filtered.
struct Way {
    const PngRows* Rows;
    std::span<const PngFilter> Filters;
    PngChoice Choice = PngChoice::LeastUnrest;

    Bytes Filtered() const { return FilterRows(*Rows, Filters, Choice); }
};

// What each row's best of all filters gives is nearly always the smallest; drawings of few colours
// and screenshots do better with one filter for all rows.
std::vector<Way> WaysFor(const PngRows& rows) {
    std::vector<Way> ways = {{&rows, kAllFilters, PngChoice::FewestPairs},
                             {&rows, kAllFilters},
                             {&rows, std::span(kAllFilters).first(3)}};
    for (std::size_t i = 0; i < std::size(kAllFilters); ++i)
        ways.push_back({&rows, std::span(kAllFilters).subspan(i, 1)});
    return ways;
}

// All ways are compressed at a low level, at the same time; the one that does best is compressed
// once more as well as can be. The same whatever the number of threads.
Bytes Smallest(const std::vector<Way>& ways) {
    std::vector<std::size_t> sizes(ways.size());
    ForEachInParallel(ways.size(), [&](std::size_t i) {
        sizes[i] = Deflate(ways[i].Filtered(), kTryLevel).size() + FileBytes(ways[i].Rows->Form);
    });
    const Way& best =
        ways[static_cast<std::size_t>(std::ranges::min_element(sizes) - sizes.begin())];
    const Bytes rows = best.Filtered();
    return AssemblePng(best.Rows->Form,
                       Deflate(rows, rows.size() <= kMostAtLastLevel ? kLastLevel : kBestLevel));
}

}  // namespace

std::vector<std::uint8_t> EncodeSmallPng(const Bitmap& image) {
    if (image.IsEmpty())
        return {};
    const std::vector<Argb> pixels = VisiblePixels(image);
    const Survey survey = SurveyOf(pixels);
    const PngForm form{.Width = image.Width(), .Height = image.Height()};
    std::vector<PngRows> forms = {TrueColors(form, survey, pixels)};
    if (!survey.Colors.empty())
        forms.push_back(Palette(form, survey, pixels));
    std::vector<Way> ways;
    for (const PngRows& rows : forms)
        std::ranges::copy(WaysFor(rows), std::back_inserter(ways));
    return Smallest(ways);
}

}  // namespace orbelle::graphics
