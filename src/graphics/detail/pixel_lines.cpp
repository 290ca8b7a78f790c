#include "graphics/detail/pixel_lines.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace orbelle::graphics {
namespace {

// Twice the product of two differences of such coordinates still fits 64 bits.
constexpr double kFarthest = 1e9;

struct Pixel {
    std::int64_t X;
    std::int64_t Y;
};

Pixel PixelAt(PointF point, double offset) {
    const auto nearest = [offset](double v) {
        return static_cast<std::int64_t>(
            std::clamp(std::floor(v - offset + 0.5), -kFarthest, kFarthest));
    };
    return {nearest(point.X), nearest(point.Y)};
}

// A bit for each pixel of an area.
class PixelBits {
public:
    explicit PixelBits(const RectI& area)
        : area_(area),
          wordsPerRow_((static_cast<std::size_t>(area.Width) + 63) / 64),
          words_(wordsPerRow_ * area.Height) {}

    void AddLine(Pixel start, Pixel end) {
        start = {start.X - area_.X, start.Y - area_.Y};
        end = {end.X - area_.X, end.Y - area_.Y};
        if (std::abs(end.X - start.X) >= std::abs(end.Y - start.Y)) {
            Step(start, end, area_.Width, area_.Height,
                 [this](std::int64_t x, std::int64_t y) { Set(x, y); });
        } else {
            Step({start.Y, start.X}, {end.Y, end.X}, area_.Height, area_.Width,
                 [this](std::int64_t y, std::int64_t x) { Set(x, y); });
        }
    }

    // Appends the runs of set pixels in `rect`, a part of the area.
    void AppendRuns(const RectI& rect, std::vector<RectI>& runs) const {
        const int end = rect.X - area_.X + rect.Width;
        for (int y = rect.Y; y < rect.Y + rect.Height; ++y) {
            const std::uint64_t* row = &words_[(y - area_.Y) * wordsPerRow_];
            int last = 0;
            for (int first = Find(row, rect.X - area_.X, end, 0); first < end;
                 first = Find(row, last, end, 0)) {
                last = Find(row, first, end, ~std::uint64_t{0});
                runs.push_back({first + area_.X, y, last - first, 1});
            }
        }
    }

private:
    void Set(std::int64_t x, std::int64_t y) {
        words_[y * wordsPerRow_ + x / 64] |= std::uint64_t{1} << (x % 64);
    }

    // Walks along the longer axis (here X, from 0 to before `width`), visiting what lies in the
    // area.
    template <typename Visit>
    static void Step(Pixel start, Pixel end, int width, int height, Visit visit) {
        if (start.X > end.X)
            std::swap(start, end);
        const std::int64_t first = std::max<std::int64_t>(start.X, 0);
        const std::int64_t last = std::min<std::int64_t>(end.X, width - 1);
        // y = start.Y + floor(remainder / whole) and remainder is kept below `whole`: exact, so
        // that a line that begins far away hits the pixels of a walk from there.
        const std::int64_t whole = 2 * std::max<std::int64_t>(end.X - start.X, 1);
        const std::int64_t perStep = 2 * (end.Y - start.Y);
        std::int64_t remainder = perStep * (first - start.X) + whole / 2;
        std::int64_t y = remainder / whole;
        remainder -= y * whole;
        if (remainder < 0) {
            remainder += whole;
            --y;
        }
        y += start.Y;
        for (std::int64_t x = first; x <= last; ++x) {
            if (y >= 0 && y < height)
                visit(x, y);
            remainder += perStep;
            if (remainder >= whole) {
                remainder -= whole;
                ++y;
            } else if (remainder < 0) {
                remainder += whole;
                --y;
            }
        }
    }

    // The first bit that is set (with `inverted` all ones: not set), or `end`.
    static int Find(const std::uint64_t* row, int from, int end, std::uint64_t inverted) {
        for (int x = from; x < end; x = (x | 63) + 1) {
            if (const std::uint64_t rest = (row[x / 64] ^ inverted) >> (x % 64))
                return std::min(end, x + std::countr_zero(rest));
        }
        return end;
    }

    RectI area_;
    std::size_t wordsPerRow_;
    std::vector<std::uint64_t> words_;
};

}  // namespace

std::vector<RectI> PixelsOfLines(std::span<const PointF> points, double offset,
                                 std::span<const RectI> clip) {
    RectI box;
    for (PointF point : points) {
        if (!std::isfinite(point.X) || !std::isfinite(point.Y))
            return {};
        const Pixel pixel = PixelAt(point, offset);
        box = Unite(box, {static_cast<int>(pixel.X), static_cast<int>(pixel.Y), 1, 1});
    }
    const RectI area = Intersect(box, BoxAround(clip));
    if (area.IsEmpty())
        return {};
    PixelBits bits(area);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        if (points[i] != points[i + 1])
            bits.AddLine(PixelAt(points[i], offset), PixelAt(points[i + 1], offset));
    }
    std::vector<RectI> runs;
    for (const RectI& rect : clip)
        bits.AppendRuns(Intersect(rect, area), runs);
    return runs;
}

}  // namespace orbelle::graphics
