#include "graphics/detail/sampling.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace orbelle::graphics {
namespace {

double Triangle(double t) {
    return 1 - std::abs(t);
}

double CatmullRom(double t) {
    t = std::abs(t);
    return t < 1 ? 1 + t * t * (1.5 * t - 2.5) : 2 + t * (t * (2.5 - 0.5 * t) - 4);
}

// How a smooth mode weighs the source pixels around a sample.
struct Filter {
    double (*Weight)(double t);
    double Radius;       // where the weight becomes zero
    bool IsHighQuality;  // stretched when shrinking, always centred, divided by the sum present
};

Filter FilterOf(InterpolationMode mode) {
    return mode == InterpolationMode::HighQuality ? Filter{CatmullRom, 2, true}
                                                  : Filter{Triangle, 1, false};
}

// Less than this is left of the weights where a pixel takes part by no more than the error of the
// numbers, far out at the border: such a pixel stays empty.
constexpr double kLeastSum = 1e-6;

// ceil(value) within the range; the comparison is made before int could overflow.
int CeilWithin(double value, PixelRange range) {
    return static_cast<int>(std::clamp<double>(std::ceil(value), range.Begin, range.End));
}

// A target pixel takes part when its centre lies in the destination.
PixelRange TakingPart(const Axis& axis, double offset, PixelRange within) {
    const PixelRange range = {CeilWithin(axis.Destination - offset, within),
                              CeilWithin(axis.Destination + axis.DestinationSize - offset, within)};
    return axis.Present.IsEmpty() || range.IsEmpty() ? PixelRange{} : range;
}

// Where the centre of a target pixel falls, on a scale where source pixel i has its centre at i.
double SamplePosition(const Axis& axis, double offset, int pixel) {
    return (pixel + offset - axis.Destination) * axis.SourceSize / axis.DestinationSize +
           axis.Source - offset;
}

}  // namespace

Axis MakeAxis(float destination, float destinationSize, int source, int sourceSize, int pictureSize,
              InterpolationMode mode) {
    if (!std::isfinite(destination) || !std::isfinite(destinationSize) || destinationSize <= 0 ||
        sourceSize <= 0)
        return {};
    const std::int64_t sourceEnd = std::int64_t{source} + sourceSize;
    const PixelRange present = {
        std::clamp(source, 0, pictureSize),
        static_cast<int>(std::clamp<std::int64_t>(sourceEnd, 0, pictureSize))};
    Axis axis{destination, destinationSize, double(source), double(sourceSize), present};
    if (FilterOf(mode).IsHighQuality) {
        // Multiplied before it is divided, so that whole-numbered ends stay whole.
        const auto destinationOf = [whole = axis](double place) {
            return whole.Destination +
                   (place - whole.Source) * whole.DestinationSize / whole.SourceSize;
        };
        axis.Destination = destinationOf(present.Begin);
        axis.DestinationSize = destinationOf(present.End) - axis.Destination;
        axis.Source = present.Begin;
        axis.SourceSize = present.Count();
    }
    return axis;
}

NearestPixels FindNearest(const Axis& axis, double offset, PixelRange within) {
    // Positions given as 32-bit floats miss the middle between two pixels by less than this.
    constexpr double slack = 1.0 / (1 << 20);
    const PixelRange range = TakingPart(axis, offset, within);
    NearestPixels nearest{{range.Begin, range.Begin}, {}};
    nearest.Sources.reserve(range.Count());
    for (int pixel = range.Begin; pixel < range.End; ++pixel) {
        const double source = std::floor(SamplePosition(axis, offset, pixel) + 0.5 + slack);
        if (source >= axis.Present.End)
            break;
        if (source < axis.Present.Begin)
            nearest.Range.Begin = pixel + 1;
        else
            nearest.Sources.push_back(static_cast<int>(source));
        nearest.Range.End = pixel + 1;
    }
    return nearest;
}

PixelRange TapTable::Needed(PixelRange part) const {
    const Taps& last = At(part.End - 1);
    return {At(part.Begin).First, last.First + last.Count};
}

TapTable FindTaps(const Axis& axis, InterpolationMode mode, double offset, PixelRange within) {
    const Filter filter = FilterOf(mode);
    const PixelRange present = axis.Present;
    TapTable table{TakingPart(axis, offset, within), {}, {}};
    table.Pixels.reserve(table.Range.Count());
    const double stretch =
        filter.IsHighQuality ? std::max(1.0, axis.SourceSize / axis.DestinationSize) : 1.0;
    const double radius = filter.Radius * stretch;
    std::vector<double> weights;
    for (int pixel = table.Range.Begin; pixel < table.Range.End; ++pixel) {
        const double position = SamplePosition(axis, filter.IsHighQuality ? 0.5 : offset, pixel);
        const int first = CeilWithin(std::floor(position - radius) + 1, present);
        const int end = std::max(first, CeilWithin(position + radius, present));
        weights.clear();
        double sum = 0;
        for (int source = first; source < end; ++source) {
            weights.push_back(filter.Weight((source - position) / stretch));
            sum += weights.back();
        }
        double divisor = 1;
        if (filter.IsHighQuality)
            divisor = sum < kLeastSum ? std::numeric_limits<double>::infinity() : sum;
        table.Pixels.push_back({first, end - first, static_cast<int>(table.Weights.size())});
        for (double weight : weights)
            table.Weights.push_back(static_cast<float>(weight / divisor));
    }
    return table;
}

}  // namespace orbelle::graphics
