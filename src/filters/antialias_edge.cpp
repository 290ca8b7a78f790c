#include "filters/antialias_edge.h"

namespace orbelle::filters {
namespace {

using graphics::Argb;
using graphics::Bitmap;

enum class Step { Below = 1, Above = -1 };  // the row of the step, relative to the notch
enum class Side { Right = 1, Left = -1 };   // where the notch's end pixel lies

class EdgeSoftener {
public:
    explicit EdgeSoftener(Bitmap& image)
        : source_(image), target_(image), width_(image.Width()), height_(image.Height()) {}

    void Run() {
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                if (AlphaAt(x, y) != 0)
                    continue;
                TryNotch(x, y, Step::Below, Side::Right);
                TryNotch(x, y, Step::Below, Side::Left);
                TryNotch(x, y, Step::Above, Side::Right);
                TryNotch(x, y, Step::Above, Side::Left);
            }
        }
    }

private:
    bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    unsigned AlphaAt(int x, int y) const { return graphics::AlphaOf(source_.Row(y)[x]); }

    // A test that reads outside the picture counts as passed as a whole.
    bool IsCorner(int x, int stepRow, int sideX, int y) const {
        if (!Inside(x, stepRow) || !Inside(sideX, y))
            return true;
        return AlphaAt(x, stepRow) > 0 && AlphaAt(sideX, y) > 0;
    }

    void TryNotch(int x, int y, Step step, Side side) {
        const int stepRow = y + static_cast<int>(step);
        const int sideX = x + static_cast<int>(side);
        if (!IsCorner(x, stepRow, sideX, y))
            return;
        // Steps above start with whatever end the last notch left (docs/oddities.md, "Notches").
        if (step == Step::Below)
            end_ = x;
        if (FindEnd(x, y, step, side))
            PaintRamp(x, y, side);
    }

    // Walks along the notch, away from its end pixel. False: no ramp here.
    bool FindEnd(int x, int y, Step step, Side side) {
        const int stepRow = y + static_cast<int>(step);
        for (int i = x; i >= 0 && i < width_; i -= static_cast<int>(side)) {
            if (AlphaAt(i, y) != 0)
                return false;
            if (!Inside(i, stepRow) || AlphaAt(i, stepRow) == 0) {
                end_ = i;
                return true;
            }
        }
        // Only one of the four cases gives up at the picture's border.
        return !(step == Step::Below && side == Side::Left);
    }

    void PaintRamp(int x, int y, Side side) {
        const int direction = static_cast<int>(side);
        const int sideX = x + direction;
        if (!Inside(sideX, y))
            return;
        const Argb color = source_.Row(y)[sideX];
        const unsigned alpha = graphics::AlphaOf(color);
        unsigned length = static_cast<unsigned>((x - end_) * direction + 1);
        for (int i = end_ + direction; (x - i) * direction >= 0; i += direction) {
            target_.MutableRow(y)[i] = graphics::SetAlphaByte(color, alpha / length);
            --length;
        }
    }

    const Bitmap source_;  // the unchanged picture
    Bitmap& target_;
    const int width_;
    const int height_;
    int end_ = 0;  // where the last notch ended; carried from pixel to pixel
};

}  // namespace

void AntialiasEdge(Bitmap& image) {
    EdgeSoftener(image).Run();
}

}  // namespace orbelle::filters
