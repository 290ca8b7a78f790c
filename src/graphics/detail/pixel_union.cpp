#include "graphics/detail/pixel_union.h"

#include <algorithm>
#include <bit>

namespace orbelle::graphics {
namespace {

constexpr std::uint64_t kAll = ~std::uint64_t{0};

// The bits of word `index` that the columns from `begin` to before `end` take.
std::uint64_t BitsOf(int index, int begin, int end) {
    const int from = std::max(begin - index * 64, 0), to = std::min(end - index * 64, 64);
    return kAll << from & kAll >> (64 - to);
}

}  // namespace

bool PixelUnion::IsWorthwhile(const RectI& area, std::size_t shapes) {
    constexpr std::size_t kFewestShapes = 8;
    constexpr std::size_t kWordsPerShape = 1024, kMostWords = 1 << 20;
    const auto words = (static_cast<std::size_t>(area.Width) + 63) / 64 * area.Height;
    return !area.IsEmpty() && shapes >= kFewestShapes &&
           words <= std::min(kMostWords, kWordsPerShape * shapes);
}

PixelUnion::PixelUnion(const RectI& area)
    : area_(area),
      wordsPerRow_((static_cast<std::size_t>(area.Width) + 63) / 64),
      words_(wordsPerRow_ * static_cast<std::size_t>(area.Height)),
      missingInRow_(static_cast<std::size_t>(area.Height), area.Width),
      missing_(std::int64_t{area.Width} * area.Height) {
    if (area.Width % 64 != 0) {
        for (int row = 0; row < area.Height; ++row)
            Row(row)[wordsPerRow_ - 1] = kAll << area.Width % 64;
    }
}

void PixelUnion::Add(const RectI& rect) {
    const RectI part = Intersect(rect, area_);
    const int begin = part.X - area_.X, end = begin + part.Width;
    for (int row = part.Y - area_.Y; row < part.Bottom() - area_.Y; ++row) {
        int& missing = missingInRow_[static_cast<std::size_t>(row)];
        if (missing == 0)
            continue;
        std::uint64_t* words = Row(row);
        for (int i = begin / 64; i * 64 < end; ++i) {
            const std::uint64_t added = BitsOf(i, begin, end) & ~words[i];
            if (added == 0)
                continue;
            words[i] |= added;
            missing -= std::popcount(added);
            missing_ -= std::popcount(added);
        }
    }
}

bool PixelUnion::Covers(const RectI& rect) const {
    const RectI part = Intersect(rect, area_);
    const int begin = part.X - area_.X, end = begin + part.Width;
    for (int row = part.Y - area_.Y; row < part.Bottom() - area_.Y; ++row) {
        if (missingInRow_[static_cast<std::size_t>(row)] == 0)
            continue;
        const std::uint64_t* words = Row(row);
        for (int i = begin / 64; i * 64 < end; ++i) {
            if ((BitsOf(i, begin, end) & ~words[i]) != 0)
                return false;
        }
    }
    return true;
}

std::vector<RectI> PixelUnion::Rects() const {
    std::vector<RectI> rects;
    for (int row = 0; row < area_.Height; ++row) {
        const std::uint64_t* words = Row(row);
        // The first column from `from` on that is set, or isn't.
        const auto find = [&](int from, bool set) {
            while (from < area_.Width) {
                const std::uint64_t word =
                    (set ? words[from / 64] : ~words[from / 64]) & kAll << from % 64;
                if (word != 0)
                    return std::min(from / 64 * 64 + std::countr_zero(word), area_.Width);
                from = (from / 64 + 1) * 64;
            }
            return area_.Width;
        };
        for (int begin = find(0, true); begin < area_.Width;) {
            const int end = find(begin, false);
            rects.push_back({area_.X + begin, area_.Y + row, end - begin, 1});
            begin = find(end, true);
        }
    }
    return rects;
}

}  // namespace orbelle::graphics
