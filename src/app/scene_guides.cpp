#include "app/scene_guides.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "widgets/theme.h"

namespace orbelle::app {
namespace {

// Paints in device pixels from scene coordinates.
class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter) : painter_(painter) {
        painter.save();
        scale_ = painter.deviceTransform().m11();
        painter.scale(1 / scale_, 1 / scale_);
    }
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;
    ~DevicePixels() { painter_.restore(); }

    int At(double scene) const { return static_cast<int>(std::lround(scene * scale_)); }

private:
    QPainter& painter_;
    double scale_ = 1;
};

// The line from one place to another: every other pixel a quarter black, those between a quarter
// white. Wherever a repaint begins, the same pixels are dark.
QImage DottedLine(int from, int to, Qt::Orientation orientation) {
    constexpr QRgb kDark = qRgba(0, 0, 0, 64), kLight = qRgba(64, 64, 64, 64);
    const bool isRow = orientation == Qt::Horizontal;
    QImage line(isRow ? to - from : 1, isRow ? 1 : to - from, QImage::Format_ARGB32_Premultiplied);
    for (int i = 0; i < to - from; ++i)
        line.setPixel(isRow ? i : 0, isRow ? 0 : i, (from + i) % 2 == 0 ? kDark : kLight);
    return line;
}

// One side of the page on the scene, of which `seen` is to be painted.
struct Side {
    int Start = 0;
    int Length = 0;
    int Pixels = 0;  // of the page
    int SeenFrom = 0;
    int SeenTo = 0;

    // The first scene pixel that shows page pixel i.
    int At(int i) const {
        return Start + static_cast<int>(std::ceil(double(i) * Length / Pixels - 0.5));
    }
    int First() const {
        return std::max(1, static_cast<int>(double(SeenFrom - Start) * Pixels / Length));
    }
    bool IsSeen(int i) const { return i < Pixels && At(i) <= SeenTo; }
    int From() const { return std::max(Start, SeenFrom); }
    int To() const { return std::min(Start + Length, SeenTo + 1); }
};

}  // namespace

void DrawPixelGrid(QPainter& painter, const PageSight& page, const QRect& seen) {
    const auto [x, y, width, height] = page.OnScene;
    const Side across{x, width, page.Width, seen.left(), seen.right()};
    const Side down{y, height, page.Height, seen.top(), seen.bottom()};
    if (across.From() >= across.To() || down.From() >= down.To())
        return;
    const DevicePixels device(painter);
    const int left = device.At(across.From()), top = device.At(down.From());
    const QImage column = DottedLine(top, device.At(down.To()), Qt::Vertical);
    const QImage row = DottedLine(left, device.At(across.To()), Qt::Horizontal);
    for (int i = across.First(); across.IsSeen(i); ++i)
        painter.drawImage(device.At(across.At(i)), top, column);
    for (int i = down.First(); down.IsSeen(i); ++i)
        painter.drawImage(left, device.At(down.At(i)), row);
}

void DrawMirrorAxes(QPainter& painter, const PageSight& page, editing::MirrorAxes axes) {
    QColor color = widgets::CurrentTheme().Accent;
    color.setAlpha(150);
    const auto [x, y, width, height] = page.OnScene;
    const DevicePixels device(painter);
    const int left = device.At(x), top = device.At(y);
    const int right = device.At(x + width), bottom = device.At(y + height);
    if (axes.LeftRight)
        painter.fillRect(device.At(x + width / 2.0), top, 1, bottom - top, color);
    if (axes.TopBottom)
        painter.fillRect(left, device.At(y + height / 2.0), right - left, 1, color);
}

}  // namespace orbelle::app
