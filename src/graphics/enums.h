// The settings of a drawing context, with the numbers that documents and commands use for them.
#pragma once

namespace orbelle::graphics {

enum class InterpolationMode {
    Default = 0,  // bilinear
    LowQuality = 1,
    HighQuality = 2,  // Catmull-Rom, stretched when shrinking
    Bilinear = 3,
    NearestNeighbor = 5,
    HighQualityBilinear = 6,
};

// Where a pixel's centre lies: "half" at (i + 0.5, j + 0.5), "none" at (i, j).
enum class PixelOffsetMode { Default = 0, HighSpeed = 1, HighQuality = 2, None = 3, Half = 4 };

enum class SmoothingMode { Default = 0, None = 3, AntiAlias = 4 };

enum class CombineMode { Replace = 0, Intersect = 1, Union = 2, Xor = 3, Exclude = 4 };

enum class FillMode { Alternate = 0, Winding = 1 };

// Round also for lines that stand for a curve, whose corners are none.
enum class LineJoin { Miter = 0, Round = 2 };

enum class WrapMode { Tile = 0, TileFlipX = 1, TileFlipY = 2, TileFlipXY = 3 };

enum class LinearGradientMode { Horizontal = 0, Vertical = 1 };

enum class MatrixOrder { Prepend = 0, Append = 1 };

}  // namespace orbelle::graphics
