#include "app/suggestion_tile.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "widgets/theme.h"

namespace orbelle::app {
namespace {

constexpr int kLargestFactor = 8;
constexpr int kPadding = 10;
constexpr int kGap = 10;  // between the enlargement and the grounds
constexpr int kGroundMargin = 10;
constexpr int kCorner = 4;
constexpr QColor kCheckColor(230, 230, 230);
constexpr QColor kDarkColor(32, 32, 32);

int CaptionHeight() {
    return widgets::HeightFor(26);
}

int Logical(int devicePixels, double scale) {
    return static_cast<int>(std::ceil(devicePixels / scale));
}

TileLayout LayOut(int size, int factor, int captionWidth, double scale) {
    TileLayout layout;
    layout.Cell = std::max(1, static_cast<int>(std::lround(factor * scale)));
    layout.Enlarged = Logical(size * layout.Cell, scale);
    layout.AreGroundsStacked = factor == 1;
    const int ground = Logical(size, scale) + 2 * kGroundMargin;
    const int columns = layout.AreGroundsStacked ? 1 : 2, rows = 3 - columns;
    const int width = std::max({layout.Enlarged, columns * ground, captionWidth});
    layout.Ground = {width / columns, ground};
    layout.Tile = {width + 2 * kPadding,
                   CaptionHeight() + layout.Enlarged + kGap + rows * ground + kPadding};
    return layout;
}

// In the middle of the box as near as whole device pixels allow; each of the picture's pixels has
// `cell` x `cell` of them.
void DrawInMiddle(QPainter& painter, const QRect& box, const QImage& picture, int cell) {
    const QTransform toDevice = painter.deviceTransform();
    const QPointF middle = toDevice.map(QRectF(box).center());
    const QSize size = picture.size() * cell;
    // Wherever the painter's origin is, halves go the same way.
    const QRectF place(std::floor(middle.x() - size.width() / 2.0 + 0.5),
                       std::floor(middle.y() - size.height() / 2.0 + 0.5), size.width(),
                       size.height());
    painter.drawImage(toDevice.inverted().mapRect(place), picture);
}

}  // namespace

TileLayout TileLayout::Fitting(int size, int count, int captionWidth, double scale, QSize room) {
    TileLayout layout;
    for (int factor = kLargestFactor; factor >= 1; --factor) {
        layout = LayOut(size, factor, captionWidth, scale);
        if (layout.Tile.width() * count <= room.width() && layout.Tile.height() <= room.height())
            break;
    }
    return layout;
}

SuggestionTile::SuggestionTile(const QString& name, const QString& meaning, const QImage& picture,
                               const TileLayout& layout)
    : QPushButton(name), picture_(picture), layout_(layout) {
    setAutoDefault(true);  // Return presses it
    setFont(widgets::ChromeFont(9));
    setToolTip(meaning);
    setAccessibleDescription(meaning);
    setAttribute(Qt::WA_Hover);
    setFixedSize(layout.Tile);
}

QRect SuggestionTile::EnlargedPlace() const {
    return {(width() - layout_.Enlarged) / 2, CaptionHeight(), layout_.Enlarged, layout_.Enlarged};
}

QRect SuggestionTile::LightPlace() const {
    return {{kPadding, CaptionHeight() + layout_.Enlarged + kGap}, layout_.Ground};
}

QRect SuggestionTile::DarkPlace() const {
    const QSize step = layout_.AreGroundsStacked ? QSize(0, layout_.Ground.height())
                                                 : QSize(layout_.Ground.width(), 0);
    return LightPlace().translated(step.width(), step.height());
}

void SuggestionTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int pen = hasFocus() ? 2 : 1;
    const bool isLit = hasFocus() || underMouse();
    painter.setPen(
        QPen(isLit ? widgets::CurrentTheme().Accent : widgets::CurrentTheme().Line, pen));
    painter.setBrush(isDown()       ? widgets::PressedColor()
                     : underMouse() ? widgets::HoverColor()
                                    : widgets::CurrentTheme().Field);
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = pen / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCorner,
                            kCorner);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(widgets::CurrentTheme().Text);
    painter.drawText(QRect(0, 0, width(), CaptionHeight()), Qt::AlignCenter, text());

    for (const QRect& place : {EnlargedPlace(), LightPlace() | DarkPlace()})
        painter.fillRect(place.adjusted(-1, -1, 1, 1), widgets::HairlineColor());
    painter.fillRect(EnlargedPlace(), Qt::white);
    widgets::DrawChecker(painter, EnlargedPlace(), kCheckColor);
    DrawInMiddle(painter, EnlargedPlace(), picture_, layout_.Cell);
    painter.fillRect(LightPlace(), Qt::white);
    painter.fillRect(DarkPlace(), kDarkColor);
    DrawInMiddle(painter, LightPlace(), picture_, 1);
    DrawInMiddle(painter, DarkPlace(), picture_, 1);
}

}  // namespace orbelle::app
