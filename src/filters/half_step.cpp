#include "filters/half_step.h"

namespace orbelle::filters {

using graphics::AlphaOf;
using graphics::Argb;
using graphics::Bitmap;

namespace {

unsigned Divide(unsigned number, unsigned by) {
    const unsigned whole = number / by, twice = 2 * (number % by);
    return whole + (twice > by || (twice == by && whole % 2 == 1));
}

Argb Mean(Argb one, Argb other) {
    const unsigned weight = AlphaOf(one), otherWeight = AlphaOf(other), sum = weight + otherWeight;
    const unsigned alpha = Divide(sum, 2);
    if (alpha == 0)
        return 0;
    const auto channel = [&](unsigned (*of)(Argb)) {
        return Divide(weight * of(one) + otherWeight * of(other), sum);
    };
    return graphics::MakeArgb(alpha, channel(graphics::RedOf), channel(graphics::GreenOf),
                              channel(graphics::BlueOf));
}

}  // namespace

Bitmap HalfStepAcross(const Bitmap& image) {
    Bitmap moved = image.IsEmpty() ? Bitmap() : Bitmap(image.Width() + 1, image.Height());
    for (int y = 0; y < moved.Height(); ++y) {
        const Argb* row = image.Row(y);
        Argb* to = moved.MutableRow(y);
        Argb left = 0;
        for (int x = 0; x < image.Width(); ++x) {
            to[x] = Mean(left, row[x]);
            left = row[x];
        }
        to[image.Width()] = Mean(left, 0);
    }
    return moved;
}

Bitmap HalfStepDown(const Bitmap& image) {
    Bitmap moved = image.IsEmpty() ? Bitmap() : Bitmap(image.Width(), image.Height() + 1);
    for (int y = 0; y < moved.Height(); ++y) {
        const Argb* above = y > 0 ? image.Row(y - 1) : nullptr;
        const Argb* here = y < image.Height() ? image.Row(y) : nullptr;
        Argb* to = moved.MutableRow(y);
        for (int x = 0; x < image.Width(); ++x)
            to[x] = Mean(above ? above[x] : 0, here ? here[x] : 0);
    }
    return moved;
}

}  // namespace orbelle::filters
