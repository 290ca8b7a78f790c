#include "formats/diff_sheet.h"

#include <algorithm>
#include <array>
#include <vector>

#include "filters/shrink_to_size.h"
#include "graphics/checkerboard.h"
#include "graphics/drawing_context.h"
#include "graphics/errors.h"

namespace orbelle::formats {
namespace {

using graphics::Argb;
using graphics::Bitmap;

// Pixels of the sheet.
constexpr int kGap = 16;
constexpr int kEnlargedSide = 256;  // smaller pictures fill as much of it as whole pixels allow
constexpr int kLargestSide = 512;

constexpr Argb kSheet = 0xFFE4E6E9;
constexpr Argb kWhite = 0xFFFFFFFF;
constexpr Argb kCheckerDark = 0xFFF0F0F0;
constexpr unsigned kFaintest = 64;  // alpha of the red of a pixel that differs by 1
constexpr Argb kRed = 0xE0002C;

// The pictures of one row, all of one size; empty: there is none.
using Cells = std::array<Bitmap, 3>;

// Every pixel as a square.
Bitmap Enlarge(const Bitmap& picture, int factor) {
    Bitmap enlarged(picture.Width() * factor, picture.Height() * factor);
    for (int y = 0; y < enlarged.Height(); ++y) {
        const Argb* from = picture.Row(y / factor);
        Argb* to = enlarged.MutableRow(y);
        for (int x = 0; x < enlarged.Width(); ++x)
            to[x] = from[x / factor];
    }
    return enlarged;
}

Bitmap ForSheet(const Bitmap& picture) {
    const int side = std::max(picture.Width(), picture.Height());
    if (side > kEnlargedSide / 2)
        return filters::ShrinkIntoBox(picture, kLargestSide, kLargestSide);
    return Enlarge(picture, kEnlargedSide / side);
}

// The pixels that are nearer to white.
Bitmap Faint(Bitmap picture) {
    Argb* const pixels = picture.MutablePixels();
    std::transform(
        pixels, pixels + static_cast<std::ptrdiff_t>(picture.Width()) * picture.Height(), pixels,
        [](Argb pixel) { return graphics::SetAlphaByte(pixel, graphics::AlphaOf(pixel) / 5); });
    return picture;
}

// The largest difference in the pixels that lie under pixel (x, y) of a cell of that size.
int DifferenceUnder(const SizePair& pair, int x, int y, int width, int height) {
    const auto first = [](int place, int from, int to) {
        return static_cast<int>(std::int64_t{place} * from / to);
    };
    int largest = 0;
    const int left = first(x, pair.A.Width(), width);
    const int right = std::max(first(x + 1, pair.A.Width(), width), left + 1);
    const int top = first(y, pair.A.Height(), height);
    const int bottom = std::max(first(y + 1, pair.A.Height(), height), top + 1);
    for (int row = top; row < bottom; ++row) {
        for (int column = left; column < right; ++column)
            largest = std::max(largest,
                               PixelDifference(pair.A.Row(row)[column], pair.B.Row(row)[column]));
    }
    return largest;
}

void MarkDifferences(Bitmap& cell, const SizePair& pair) {
    Bitmap marks(cell.Width(), cell.Height());
    for (int y = 0; y < marks.Height(); ++y) {
        Argb* const row = marks.MutableRow(y);
        for (int x = 0; x < marks.Width(); ++x) {
            const int difference = DifferenceUnder(pair, x, y, marks.Width(), marks.Height());
            if (difference > 0)
                row[x] = graphics::SetAlphaByte(
                    kRed, kFaintest + static_cast<unsigned>(difference) * (255 - kFaintest) / 255);
        }
    }
    graphics::DrawingContext(cell).DrawImage(marks, 0, 0);
}

Bitmap OnChecker(const Bitmap& picture) {
    Bitmap cell(picture.Width(), picture.Height());
    graphics::DrawCheckerboard(cell, {0, 0, cell.Width(), cell.Height()}, kWhite, kCheckerDark);
    graphics::DrawingContext(cell).DrawImage(picture, 0, 0);
    return cell;
}

Bitmap OnWhite(const Bitmap& picture) {
    Bitmap cell(picture.Width(), picture.Height());
    graphics::DrawingContext context(cell);
    context.Clear(kWhite);
    context.DrawImage(picture, 0, 0);
    return cell;
}

Cells CellsOf(const SizePair& pair) {
    Cells cells;
    if (!pair.A.IsEmpty())
        cells[0] = OnChecker(ForSheet(pair.A));
    if (!pair.B.IsEmpty())
        cells[1] = OnChecker(ForSheet(pair.B));
    if (pair.IsInBoth()) {
        cells[2] = OnWhite(Faint(ForSheet(pair.B)));
        MarkDifferences(cells[2], pair);
    }
    return cells;
}

const Bitmap& AnyOf(const Cells& cells) {
    return cells[0].IsEmpty() ? cells[1] : cells[0];
}

}  // namespace

Bitmap DrawDiffSheet(std::span<const SizePair> pairs) {
    std::vector<Cells> rows;
    int width = 0;  // of a column
    int height = kGap;
    for (const SizePair& pair : pairs) {
        const Cells& cells = rows.emplace_back(CellsOf(pair));
        width = std::max(width, AnyOf(cells).Width());
        height += AnyOf(cells).Height() + kGap;
        if (height > graphics::kMaxBitmapSide)
            throw Error("too many sizes for one picture");
    }
    Bitmap sheet(kGap + 3 * (width + kGap), height);
    graphics::DrawingContext context(sheet);
    context.Clear(kSheet);
    int top = kGap;
    for (const Cells& cells : rows) {
        int left = kGap;
        for (const Bitmap& cell : cells) {
            context.DrawImage(cell, left + (width - cell.Width()) / 2, top);
            left += width + kGap;
        }
        top += AnyOf(cells).Height() + kGap;
    }
    return sheet;
}

}  // namespace orbelle::formats
