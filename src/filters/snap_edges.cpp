#include "filters/snap_edges.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "graphics/geometry.h"
#include "graphics/pixel_mask.h"

namespace orbelle::filters {
namespace {

using namespace graphics;

// Alpha from which pixels count for the solid part, without shadows and glows.
constexpr int kBodyAlpha = 200;
// An edge counts when its differences, added up, are those between black and white over this part
// of the picture's side.
constexpr double kLeastEdge = 0.15;
constexpr std::size_t kMostEdges = 6;
// In pixels of the small picture:
constexpr double kSoftness = 0.15;      // half the breadth over which an edge is added up
constexpr double kEdgesApart = 0.5;     // of two closer edges the weaker one is no edge
constexpr double kLeastStretch = 0.25;  // what may become a whole pixel
constexpr double kMostMove = 0.75;
constexpr double kThin = 2;
constexpr double kGrowth = 0.49;  // by how much ends are nearer to the outer border

// One axis of the picture: for each border between pixels, and both ends, how much changes there.
using Profile = std::vector<std::int64_t>;

// Blue, green and red times alpha, and alpha, 0 to 255.
using Premultiplied = std::array<int, 4>;

Premultiplied Premultiply(Argb color) {
    const unsigned alpha = AlphaOf(color);
    const auto times = [alpha](unsigned channel) {
        return static_cast<int>((channel * alpha * 257 + 32768) >> 16);
    };
    return {times(BlueOf(color)), times(GreenOf(color)), times(RedOf(color)),
            static_cast<int>(alpha)};
}

// How different two pixels look, 0 to 255: in the channel where it shows most, over black or white.
int Difference(const Premultiplied& left, const Premultiplied& right) {
    const int alpha = left[3] - right[3];
    int most = 0;
    for (int i = 0; i < 3; ++i) {
        const int color = left[i] - right[i];
        most = std::max({most, std::abs(color), std::abs(color - alpha)});
    }
    return most;
}

struct Profiles {
    Profile Columns, Rows;
};

Profiles FindProfiles(const Bitmap& picture) {
    const int width = picture.Width(), height = picture.Height();
    Profiles profiles{Profile(width + 1), Profile(height + 1)};
    // With a transparent pixel before the first and after the last.
    std::vector<Premultiplied> above(width + 2), here(width + 2);
    for (int y = 0; y <= height; ++y) {
        if (y < height)
            std::transform(picture.Row(y), picture.Row(y) + width, here.begin() + 1, Premultiply);
        else
            std::ranges::fill(here, Premultiplied{});
        for (int x = 0; x <= width; ++x) {
            profiles.Columns[x] += Difference(here[x], here[x + 1]);
            profiles.Rows[y] += Difference(above[x], here[x]);
        }
        std::swap(above, here);
    }
    return profiles;
}

struct Edge {
    double Place = 0;
    std::int64_t Strength = 0;
};

// The edges of one axis, the strongest first; `across` is the picture's other side.
std::vector<Edge> FindEdges(const Profile& profile, int across, double ratio) {
    const int last = static_cast<int>(profile.size()) - 1;
    const auto around = [&](int place, int reach) {
        const int begin = std::max(0, place - reach), end = std::min(last, place + reach) + 1;
        return std::pair{begin, end};
    };
    const int softness = static_cast<int>(ratio * kSoftness);
    const int apart = std::max(1, static_cast<int>(ratio * kEdgesApart));
    Profile strengths(profile.size());
    for (int place = 0; place <= last; ++place) {
        const auto [begin, end] = around(place, softness);
        for (int i = begin; i < end; ++i)
            strengths[place] += profile[i];
    }
    std::vector<Edge> edges;
    for (int place = 0; place <= last; ++place) {
        const std::int64_t strength = strengths[place];
        if (strength < kLeastEdge * 255 * across)
            continue;
        // The first of those that are as strong.
        const auto [begin, end] = around(place, apart);
        const auto strongest = std::max_element(strengths.begin() + begin, strengths.begin() + end);
        if (strongest - strengths.begin() != place)
            continue;
        const auto [from, to] = around(place, softness);
        std::int64_t moment = 0;
        for (int i = from; i < to; ++i)
            moment += profile[i] * i;
        edges.push_back({static_cast<double>(moment) / static_cast<double>(strength), strength});
    }
    std::ranges::stable_sort(edges, std::ranges::greater{}, &Edge::Strength);
    edges.resize(std::min(edges.size(), kMostEdges));
    return edges;
}

// A place on one axis of the picture and the border of the small one that it moves to.
struct Snap {
    double From = 0;
    int To = 0;
};

// All of one axis, by place.
class Snaps {
public:
    Snaps(int length, int size)
        : ratio_(static_cast<double>(length) / size),
          snaps_{{0, 0}, {static_cast<double>(length), size}} {}

    // Moves a place to the border nearest to where it lies now, if it can.
    void Add(double place) {
        const auto next = Next(place);
        if (next == snaps_.end())
            return;
        const Snap &before = *(next - 1), &after = *next;
        const double part = (place - before.From) / (after.From - before.From);
        Move(place, before.To + part * (after.To - before.To), 0);
    }

    // Moves a stretch, before anything else, to the borders nearest to its ends, which first go
    // outward by `growth`. A thin one keeps its breadth instead.
    void AddStretch(double begin, double end, double growth) {
        if (end - begin < ratio_ * kThin) {
            Add(begin);
            Add(end);
        } else {
            Move(begin, begin / ratio_, -growth);
            Move(end, end / ratio_, growth);
        }
    }

    // Where the borders of the small picture's pixels come from, both ends included.
    std::vector<double> Borders() const {
        std::vector<double> borders;
        for (std::size_t i = 1; i < snaps_.size(); ++i) {
            const Snap &before = snaps_[i - 1], &after = snaps_[i];
            for (int to = before.To; to < after.To; ++to)
                borders.push_back(before.From + (to - before.To) * (after.From - before.From) /
                                                    (after.To - before.To));
        }
        borders.push_back(snaps_.back().From);
        return borders;
    }

private:
    // The first beyond a place that is less than the length.
    std::vector<Snap>::iterator Next(double place) {
        return std::ranges::upper_bound(snaps_, place, {}, &Snap::From);
    }

    // `now` is where the place lies in the small picture.
    void Move(double place, double now, double bias) {
        const auto next = Next(place);
        if (next == snaps_.end())
            return;
        const Snap before = *(next - 1), after = *next;
        const double least = ratio_ * kLeastStretch;
        if (place - before.From < least || after.From - place < least || after.To - before.To < 2)
            return;
        const int to = std::clamp(RoundToEven(now + bias), before.To + 1, after.To - 1);
        if (std::abs(to - now) <= kMostMove + std::abs(bias))
            snaps_.insert(next, {place, to});
    }

    double ratio_;
    std::vector<Snap> snaps_;
};

// The part of a pixel of the small picture that a pixel of the large one gives.
struct Share {
    int Source = 0;
    int Target = 0;
    float Weight = 0;
};

// By source pixel; `bodyBegin` and `bodyEnd` are the ends of the solid part.
std::vector<Share> FindShares(const Profile& profile, int across, int bodyBegin, int bodyEnd,
                              int size) {
    const int length = static_cast<int>(profile.size()) - 1;
    Snaps snaps(length, size);
    if (bodyBegin < bodyEnd) {
        const double growth = size < kGrowBelowSize ? kGrowth : 0;
        snaps.AddStretch(bodyBegin, bodyEnd, growth);
    }
    for (const Edge& edge : FindEdges(profile, across, static_cast<double>(length) / size))
        snaps.Add(edge.Place);

    const std::vector<double> borders = snaps.Borders();
    std::vector<Share> shares;
    for (int target = 0; target < size; ++target) {
        const double begin = borders[target], end = borders[target + 1];
        for (int source = static_cast<int>(begin); source < length && source < end; ++source) {
            const double part = std::min<double>(source + 1, end) - std::max<double>(source, begin);
            shares.push_back({source, target, static_cast<float>(part / (end - begin))});
        }
    }
    return shares;
}

// Sums of blue, green and red times alpha, and of alpha.
using Sums = std::array<float, 4>;

void AddTo(Sums& sums, const Sums& more, float weight) {
    for (std::size_t i = 0; i < sums.size(); ++i)
        sums[i] += more[i] * weight;
}

Argb StraightPixel(const Sums& sums) {
    const float alpha = std::min(sums[3], 255.0F);
    if (alpha < 0.5F)
        return 0;
    const auto round = [](float channel) {
        return static_cast<unsigned>(std::min(channel, 255.0F) + 0.5F);
    };
    return MakeArgb(round(alpha), round(sums[2] / alpha), round(sums[1] / alpha),
                    round(sums[0] / alpha));
}

// The row with its columns added up.
void AddUpColumns(const Argb* row, std::span<const Share> shares, std::vector<Sums>& sums) {
    std::ranges::fill(sums, Sums{});
    for (const Share& share : shares) {
        const Argb color = row[share.Source];
        const auto alpha = static_cast<float>(AlphaOf(color));
        AddTo(
            sums[share.Target],
            {alpha * static_cast<float>(BlueOf(color)), alpha * static_cast<float>(GreenOf(color)),
             alpha * static_cast<float>(RedOf(color)), alpha},
            share.Weight);
    }
}

}  // namespace

Bitmap ShrinkSnapped(const Bitmap& picture, int width, int height) {
    Bitmap small(width, height);
    if (picture.IsEmpty() || small.IsEmpty())
        return {};
    const Profiles profiles = FindProfiles(picture);
    const RectI body = PixelMask(picture, kBodyAlpha, 0, 0).Bounds();
    const std::vector<Share> columns =
        FindShares(profiles.Columns, picture.Height(), body.X, body.X + body.Width, width);
    const std::vector<Share> rows =
        FindShares(profiles.Rows, picture.Width(), body.Y, body.Y + body.Height, height);

    std::vector<Sums> line(width), total(width);
    int added = -1;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Share& row = rows[i];
        if (row.Source != added)
            AddUpColumns(picture.Row(row.Source), columns, line);
        added = row.Source;
        for (int x = 0; x < width; ++x)
            AddTo(total[x], line[x], row.Weight);
        if (i + 1 == rows.size() || rows[i + 1].Target != row.Target) {
            std::ranges::transform(total, small.MutableRow(row.Target), StraightPixel);
            std::ranges::fill(total, Sums{});
        }
    }
    return small;
}

}  // namespace orbelle::filters
