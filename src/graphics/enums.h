// The settings of a drawing context and of what it draws.
#pragma once

namespace orbelle::graphics {

enum class InterpolationMode {
    Default,      // bilinear
    HighQuality,  // Catmull-Rom, stretched when shrinking
    NearestNeighbor,
};

// Where a pixel's centre lies: by default at (i, j), with high quality at (i + 0.5, j + 0.5).
enum class PixelOffsetMode { Default, HighQuality };

enum class SmoothingMode { None, AntiAlias };

enum class CombineMode { Replace, Intersect, Union, Xor, Exclude };

enum class FillMode { Alternate, Winding };

// Round also for lines that stand for a curve, whose corners are none.
enum class LineJoin { Miter, Round };

enum class LinearGradientMode { Horizontal, Vertical };

enum class MatrixOrder { Prepend, Append };

}  // namespace orbelle::graphics
