#include "graphics/codecs/png_rows.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace orbelle::graphics {
namespace {

static_assert(std::endian::native == std::endian::little, "channels are taken from whole pixels");

// Red first, as the file has it.
Argb RedFirst(Argb color) {
    return (color & 0xFF00FF00) | RedOf(color) | BlueOf(color) << 16;
}

// A row and the one above, of zeros above the first; `Step` bytes a pixel.
struct RowPair {
    const std::uint8_t* Now;
    const std::uint8_t* Above;
    std::size_t Step;
    std::size_t Count;
};

// `guess` takes the bytes to the left, above and to the left of that, 0 outside of the picture.
// Plain enough that compilers do many bytes at a time.
template <typename Guess>
void Subtract(const RowPair& rows, std::uint8_t* out, const Guess& guess) {
    const auto [now, above, step, count] = rows;
    for (std::size_t i = 0; i < std::min(step, count); ++i)
        out[i] = static_cast<std::uint8_t>(now[i] - guess(0, above[i], 0));
    for (std::size_t i = step; i < count; ++i)
        out[i] =
            static_cast<std::uint8_t>(now[i] - guess(now[i - step], above[i], above[i - step]));
}

// The one of the three that left + above - corner is nearest to.
std::uint8_t Paeth(std::uint8_t left, std::uint8_t above, std::uint8_t corner) {
    const auto size = [](std::int16_t difference) {
        return static_cast<std::int16_t>(difference < 0 ? -difference : difference);
    };
    const auto fromCorner = static_cast<std::int16_t>(above - corner);
    const auto aside = static_cast<std::int16_t>(left - corner);
    const std::int16_t toLeft = size(fromCorner);
    const std::int16_t toAbove = size(aside);
    const std::int16_t toCorner = size(static_cast<std::int16_t>(fromCorner + aside));
    const std::uint8_t other = toAbove <= toCorner ? above : corner;
    return toLeft <= std::min(toAbove, toCorner) ? left : other;
}

void Filter(const RowPair& rows, PngFilter filter, std::uint8_t* out) {
    using Byte = std::uint8_t;
    switch (filter) {
        case PngFilter::None:
            std::memcpy(out, rows.Now, rows.Count);
            return;
        case PngFilter::Left:
            return Subtract(rows, out, [](Byte left, Byte, Byte) { return left; });
        case PngFilter::Above:
            return Subtract(rows, out, [](Byte, Byte above, Byte) { return above; });
        case PngFilter::Mean:
            return Subtract(rows, out, [](Byte left, Byte above, Byte) {
                return static_cast<Byte>((left + above) >> 1);
            });
        case PngFilter::Paeth:
            return Subtract(rows, out, Paeth);
    }
}

// Small differences, up and down, are what compresses well.
std::uint32_t Unrest(const std::uint8_t* row, std::size_t count) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < count; ++i)
        sum += std::min(row[i], static_cast<std::uint8_t>(-row[i]));
    return sum;
}

class PairCounter {
public:
    std::uint32_t operator()(const std::uint8_t* row, std::size_t count) {
        ++turn_;
        std::uint32_t pairs = 0;
        for (std::size_t i = 1; i < count; ++i) {
            std::uint32_t& last = seen_[static_cast<std::size_t>(row[i - 1] << 8 | row[i])];
            pairs += last != turn_;
            last = turn_;
        }
        return pairs;
    }

private:
    std::vector<std::uint32_t> seen_ = std::vector<std::uint32_t>(1 << 16);  // in which turn
    std::uint32_t turn_ = 0;
};

template <typename Cost>
std::vector<std::uint8_t> FilterRowsBy(const PngRows& rows, std::span<const PngFilter> filters,
                                       Cost cost) {
    const std::size_t stride = rows.Stride;
    const auto height = static_cast<std::size_t>(rows.Form.Height);
    std::vector<std::uint8_t> filtered((stride + 1) * height);
    std::vector<std::uint8_t> tried(stride);
    const std::vector<std::uint8_t> zeros(stride);
    for (std::size_t y = 0; y < height; ++y) {
        const std::uint8_t* now = rows.Bytes.data() + y * stride;
        const RowPair pair{now, y > 0 ? now - stride : zeros.data(), rows.BytesPerPixel, stride};
        std::uint8_t* out = filtered.data() + y * (stride + 1);
        std::uint32_t least = 0;
        for (const PngFilter filter : filters) {
            const bool isFirst = filter == filters.front();
            Filter(pair, filter, isFirst ? out + 1 : tried.data());
            if (filters.size() > 1) {
                const std::uint32_t found = cost(isFirst ? out + 1 : tried.data(), stride);
                if (!isFirst && found >= least)
                    continue;
                least = found;
            }
            if (!isFirst)
                std::memcpy(out + 1, tried.data(), stride);
            *out = static_cast<std::uint8_t>(filter);
        }
    }
    return filtered;
}

}  // namespace

PngRows WholeRows(const Bitmap& image) {
    PngRows rows{.Form = {.Width = image.Width(), .Height = image.Height()}};
    const bool opaque = image.Format() == PixelFormat::Rgb24;
    if (opaque)
        rows.Form.Colors = PngColors::Rgb;
    rows.BytesPerPixel = opaque ? 3 : 4;
    rows.Stride = static_cast<std::size_t>(image.Width()) * rows.BytesPerPixel;
    rows.Bytes.resize(rows.Stride * static_cast<std::size_t>(image.Height()));
    std::uint8_t* out = rows.Bytes.data();
    for (int y = 0; y < image.Height(); ++y) {
        const Argb* row = image.Row(y);
        for (int x = 0; x < image.Width(); ++x, out += rows.BytesPerPixel) {
            const Argb color = RedFirst(row[x]);
            if (opaque)
                std::memcpy(out, &color, 3);
            else
                std::memcpy(out, &color, 4);
        }
    }
    return rows;
}

std::vector<std::uint8_t> FilterRows(const PngRows& rows, std::span<const PngFilter> filters,
                                     PngChoice choice) {
    if (choice == PngChoice::FewestPairs)
        return FilterRowsBy(rows, filters, PairCounter());
    return FilterRowsBy(rows, filters, Unrest);
}

}  // namespace orbelle::graphics
