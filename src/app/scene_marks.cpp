#include "app/scene_marks.h"

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace orbelle::app {
namespace {

constexpr QColor kDark(0, 0, 0, 170), kLight(255, 255, 255);
// Opaque, which is fast: a frame as large as the page is drawn at every step of a drag.
constexpr QColor kFrameDark(25, 26, 28);
constexpr QColor kFaintDark(0, 0, 0, 90), kFaintLight(255, 255, 255, 110);
constexpr int kDash = 4;  // in widths of the line
// A selection of more edges than that has no dashes: it would be nothing but dashes.
constexpr std::size_t kMostEdges = 20000;

QRectF RectOf(const graphics::RectF& rect) {
    return {rect.X, rect.Y, rect.Width, rect.Height};
}

// Along the inside of a rectangle.
void DrawLine(QPainter& painter, const QRectF& rect, bool isOval, const QColor& color, int width) {
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const double half = width / 2.0;
    const QRectF middle = rect.adjusted(half, half, -half, -half);
    if (isOval)
        painter.drawEllipse(middle);
    else
        painter.drawRect(middle);
}

// The same in whole pixels, much faster than a pen. No pixel is filled twice.
void FillLine(QPainter& painter, const QRect& rect, const QColor& color, int width) {
    const int between = std::max(rect.height() - 2 * width, 0);
    painter.fillRect(rect.x(), rect.y(), rect.width(), width, color);
    painter.fillRect(rect.x(), rect.y() + width, width, between, color);
    painter.fillRect(rect.right() + 1 - width, rect.y() + width, width, between, color);
    painter.fillRect(rect.x(), rect.bottom() + 1 - width, rect.width(), width, color);
}

QRectF Grown(const QRectF& rect, double by) {
    return rect.adjusted(-by, -by, by, by);
}

// A dark line, and a light one around it.
void DrawOutline(QPainter& painter, const editing::OverlayShape& shape, int width) {
    painter.setRenderHint(QPainter::Antialiasing, shape.IsOval);
    const QRectF rect = RectOf(shape.Rect);
    DrawLine(painter, Grown(rect, width), shape.IsOval, kLight, width);
    DrawLine(painter, rect, shape.IsOval, kDark, width);
}

// The soft brush reaches three times as far as its size tells.
void DrawReach(QPainter& painter, const editing::OverlayShape& brush, int width) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF rect = Grown(RectOf(brush.Rect), brush.Rect.Width);
    DrawLine(painter, Grown(rect, width), true, kFaintLight, width);
    DrawLine(painter, rect, true, kFaintDark, width);
}

// Dark and light dashes.
void DrawRubberBand(QPainter& painter, const editing::OverlayLine& line, int width) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QLineF band(line.Start.X, line.Start.Y, line.End.X, line.End.Y);
    painter.setPen(QPen(Qt::white, width));
    painter.drawLine(band);
    painter.setPen(QPen(Qt::black, width, Qt::DashLine));
    painter.drawLine(band);
}

// Slanting stripes: an edge that is filled with them has dashes, whichever way it goes.
QImage Stripes(int width) {
    const int dash = kDash * width;
    QImage stripes(2 * dash, 2 * dash, QImage::Format_RGB32);
    for (int y = 0; y < 2 * dash; ++y)
        for (int x = 0; x < 2 * dash; ++x)
            stripes.setPixelColor(x, y, (x + y) / dash % 2 == 0 ? Qt::black : Qt::white);
    return stripes;
}

// What is selected of a page, a byte for each pixel.
class Mask {
public:
    Mask(const graphics::Region& region, int width, int height)
        : width_(width), height_(height), set_(std::size_t(width) * std::size_t(height)) {
        for (const auto& [x, y, w, h] : region.Rects({0, 0, width, height}))
            for (int row = y; row < y + h; ++row)
                std::fill_n(set_.begin() + Index(x, row), w, char{1});
    }
    bool At(int x, int y) const {
        return x >= 0 && y >= 0 && x < width_ && y < height_ &&
               set_[static_cast<std::size_t>(Index(x, y))] != 0;
    }

private:
    std::ptrdiff_t Index(int x, int y) const { return std::ptrdiff_t(y) * width_ + x; }

    int width_, height_;
    std::vector<char> set_;
};

// Calls `found` with each run of numbers below `count` for which `is` holds.
template <typename Is, typename Found>
void EachRun(int count, Is&& is, Found&& found) {
    for (int i = 0; i < count; ++i) {
        if (!is(i))
            continue;
        const int from = i;
        while (i < count && is(i))
            ++i;
        found(from, i);
    }
}

}  // namespace

void DrawLayerFrame(QPainter& painter, const graphics::RectI& frame, int width) {
    // The frame stands two pixels off the layer.
    const int off = 2 * width - 2;
    const QRect line =
        QRect(frame.X, frame.Y, frame.Width, frame.Height).adjusted(-off, -off, off, off);
    FillLine(painter, line.adjusted(-width, -width, width, width), kFrameDark, width);
    FillLine(painter, line, kLight, width);
    FillLine(painter, line.adjusted(width, width, -width, -width), kFrameDark, width);
}

void DrawOverlays(QPainter& painter, const editing::Overlays& overlays, int width) {
    painter.setBrush(Qt::NoBrush);
    const editing::OverlayShape& frame = overlays.SelectionFrame;
    if (frame.Visible && frame.Rect.Width > 0 && frame.Rect.Height > 0)
        DrawOutline(painter, frame, width);
    if (overlays.RubberBand.Visible)
        DrawRubberBand(painter, overlays.RubberBand, width);
    const editing::OverlayShape& mark = overlays.PointerMark;
    if (!mark.Visible)
        return;
    DrawOutline(painter, mark, width);
    if (mark.IsOval)
        DrawReach(painter, mark, width);
}

void SelectionEdge::Follow(const graphics::Region& region, int pageWidth, int pageHeight) {
    edges_.clear();
    const Mask mask(region, pageWidth, pageHeight);
    // Along the line before pixel `at`; `inside` and `outside` are the rows or columns beside it.
    const auto addRow = [&](Side side, int at, int inside, int outside) {
        EachRun(
            pageWidth, [&](int x) { return mask.At(x, inside) && !mask.At(x, outside); },
            [&](int from, int to) {
                edges_.push_back({side, at, from, to});
            });
    };
    const auto addColumn = [&](Side side, int at, int inside, int outside) {
        EachRun(
            pageHeight, [&](int y) { return mask.At(inside, y) && !mask.At(outside, y); },
            [&](int from, int to) {
                edges_.push_back({side, at, from, to});
            });
    };
    for (int y = 0; y <= pageHeight && edges_.size() <= kMostEdges; ++y) {
        addRow(Side::Top, y, y, y - 1);
        addRow(Side::Bottom, y, y - 1, y);
    }
    for (int x = 0; x <= pageWidth && edges_.size() <= kMostEdges; ++x) {
        addColumn(Side::Left, x, x, x - 1);
        addColumn(Side::Right, x, x - 1, x);
    }
    if (edges_.size() > kMostEdges)
        edges_.clear();
}

void SelectionEdge::Draw(QPainter& painter, const PageSight& page, int width, int step) const {
    const graphics::RectI& whole = page.OnScene;
    const auto place = [](int pixel, int start, int length, int pixels) {
        return start + static_cast<int>(std::ceil(double(pixel) * length / pixels - 0.5));
    };
    const auto placeX = [&](int x) { return place(x, whole.X, whole.Width, page.Width); };
    const auto placeY = [&](int y) { return place(y, whole.Y, whole.Height, page.Height); };
    painter.save();
    painter.setBrushOrigin(step % (2 * kDash) * width, 0);
    const QBrush stripes(Stripes(width));
    for (const auto& [side, at, from, to] : edges_)
        if (side == Side::Top || side == Side::Bottom)
            painter.fillRect(placeX(from) - width, placeY(at) - (side == Side::Top ? width : 0),
                             placeX(to) - placeX(from) + 2 * width, width, stripes);
        else
            painter.fillRect(placeX(at) - (side == Side::Left ? width : 0), placeY(from), width,
                             placeY(to) - placeY(from), stripes);
    painter.restore();
}

}  // namespace orbelle::app
