// Which source pixels the pixels of a scaled picture are made of. Columns and rows are worked out
// alike and apart: everything here concerns one of the two axes.
#pragma once

#include <vector>

#include "graphics/enums.h"

namespace orbelle::graphics {

// From Begin up to, not including, End.
struct PixelRange {
    int Begin = 0;
    int End = 0;
    bool IsEmpty() const { return Begin >= End; }
    int Count() const { return End - Begin; }
};

// One axis of a scaled drawing. The stretch Source to Source + SourceSize becomes Destination to
// Destination + DestinationSize; `Present` are its pixels that lie in the picture.
struct Axis {
    double Destination = 0;
    double DestinationSize = 0;
    double Source = 0;
    double SourceSize = 0;
    PixelRange Present;
};

// Empty sizes, and those that are not finite, give an axis on which no pixel takes part. For the
// high-quality modes the source is cut to the picture (and the destination with it).
Axis MakeAxis(float destination, float destinationSize, int source, int sourceSize, int pictureSize,
              InterpolationMode mode);

// The nearest source pixel for each target pixel of a range.
struct NearestPixels {
    PixelRange Range;
    std::vector<int> Sources;
};

// For the pixels of `within` that take part and whose nearest source pixel is present.
NearestPixels FindNearest(const Axis& axis, double offset, PixelRange within);

// A target pixel is the sum of `Count` neighbouring source pixels, each times its weight.
struct Taps {
    int First = 0;
    int Count = 0;
    int Weights = 0;  // where they start among all weights of the table
};

struct TapTable {
    PixelRange Range;          // target pixels
    std::vector<Taps> Pixels;  // one for each of the range
    std::vector<float> Weights;

    const Taps& At(int pixel) const { return Pixels[pixel - Range.Begin]; }

    // The source pixels that a part of the range (not empty) needs.
    PixelRange Needed(PixelRange part) const;
};

// For the pixels of `within` that take part. Only present pixels are taps: the bilinear modes lack
// the weight of the others, in the high-quality modes the weights add up to 1 without them.
TapTable FindTaps(const Axis& axis, InterpolationMode mode, double offset, PixelRange within);

}  // namespace orbelle::graphics
