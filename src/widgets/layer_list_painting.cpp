// How the list of layers is painted.
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <algorithm>

#include "widgets/layer_list.h"
#include "widgets/layer_list_metrics.h"
#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr double kHiddenOpacity = 0.35;
constexpr double kDraggedOpacity = 0.5;

// Pictures above this are shrunk row by row of the result: QImage::scaled would make a copy of the
// whole picture in another format.
constexpr qsizetype kLargeBytes = 16 << 20;

QImage Shrunk(const QImage& picture, const QSize& size) {
    const auto scaled = [](const QImage& part, const QSize& to) {
        return part.scaled(to, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    if (picture.sizeInBytes() <= kLargeBytes)
        return scaled(picture, size);
    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        const int top = y * picture.height() / size.height();
        const int bottom = std::max((y + 1) * picture.height() / size.height(), top + 1);
        const QImage band(picture.constScanLine(top), picture.width(), bottom - top,
                          picture.bytesPerLine(), picture.format());
        const QImage row = scaled(band, {size.width(), 1}).convertToFormat(result.format());
        std::copy_n(row.constBits(), qsizetype{size.width()} * 4, result.scanLine(y));
    }
    return result;
}

QRectF FaceOf(const QRect& row) {
    return QRectF(row).adjusted(2, 1, -2, -1);
}

}  // namespace

void LayerList::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(viewport()->rect(), CurrentTheme().Field);
    for (int row = 0; row < Count(); ++row)
        if (RowPlace(row).intersects(event->rect()))
            PaintRow(painter, row);
    if (hasFocus()) {
        painter.setPen(QPen(CurrentTheme().Accent, 1));
        painter.setBrush(Qt::NoBrush);
        const int row = FocusedPart();
        painter.drawRoundedRect(
            FaceOf(row < 0 ? viewport()->rect() : RowPlace(row)).adjusted(0.5, 0.5, -0.5, -0.5),
            kCornerRadius, kCornerRadius);
    }
    PaintDrop(painter);
}

void LayerList::PaintRow(QPainter& painter, int row) {
    const int layer = LayerOfRow(row);
    const QRect place = RowPlace(row);
    if (layer == selectedIndex_) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(PressedColor());
        painter.drawRoundedRect(FaceOf(place), kCornerRadius, kCornerRadius);
    }
    const int inset = (LayerRowHeight() - kLayerThumbnail) / 2;
    const QRect box =
        Mirrored({place.left() + kSpace, place.top() + inset, kLayerThumbnail, kLayerThumbnail});
    // What is dragged or hidden has a paler picture; its words are as easily read.
    painter.setOpacity((IsDragged(row) ? kDraggedOpacity : 1) *
                       (rows_[layer].Visible ? 1 : kHiddenOpacity));
    painter.setBrushOrigin(box.topLeft());
    painter.fillRect(box, GreyChecks());
    painter.setBrushOrigin(0, 0);
    PaintThumbnail(painter, box, layer);
    painter.setOpacity(1);
    if (layer != renamed_)
        PaintText(painter, row);
    PaintEye(painter, row);
}

void LayerList::PaintThumbnail(QPainter& painter, const QRect& box, int layer) {
    const LayerRow& row = rows_[layer];
    const QRect place = FitRect(row.Size, kLayerThumbnail).translated(box.topLeft());
    if (place.isEmpty() || row.Image.isNull())
        return;
    const QSize pixels = (QSizeF(place.size()) * devicePixelRatioF()).toSize();
    const bool shrinks = row.Image.width() > pixels.width() || row.Image.height() > pixels.height();
    QImage& thumbnail = thumbnails_[layer];
    if (shrinks && thumbnail.size() != pixels)
        thumbnail = Shrunk(row.Image, pixels);
    // Without smoothing: a small picture that the screen enlarges keeps its hard squares.
    painter.drawImage(place, shrinks ? thumbnail : row.Image);
}

void LayerList::PaintText(QPainter& painter, int row) const {
    const LayerRow& shown = rows_[LayerOfRow(row)];
    const QRect place = TextPlace(row);
    const Qt::Alignment leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);  // of each text as it is
    const auto draw = [&](const QRect& line, double points, const QString& text) {
        const QFont font = ChromeFont(points);
        painter.setFont(font);
        painter.drawText(line, leading | Qt::AlignVCenter | Qt::TextSingleLine,
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, line.width()));
    };
    painter.setPen(shown.Visible && !IsDragged(row) ? CurrentTheme().Text : CurrentTheme().Note);
    draw(place.adjusted(0, 2, 0, -LayerRowHeight() / 2), kNormalText, PartName(row));
    painter.setPen(CurrentTheme().Note);
    draw(place.adjusted(0, LayerRowHeight() / 2, 0, -2), kSmallText, shown.OpacityText);
}

// Open, or with a line through it.
void LayerList::PaintEye(QPainter& painter, int row) const {
    QPainterPath lids(QPointF(-7, 0));
    lids.quadTo(0, -9, 7, 0);
    lids.quadTo(0, 9, -7, 0);
    painter.save();
    painter.translate(QRectF(EyePlace(row)).center());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(CurrentTheme().Note, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(lids);
    if (rows_[LayerOfRow(row)].Visible) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(CurrentTheme().Note);
        painter.drawEllipse(QPointF(0, 0), 2.2, 2.2);
    } else {
        painter.drawLine(QPointF(-5.5, 5.5), QPointF(5.5, -5.5));
    }
    painter.restore();
}

// The line at which the dragged row would be put in.
void LayerList::PaintDrop(QPainter& painter) const {
    if (gap_ < 0)
        return;
    const int y = std::clamp(RowPlace(gap_).top(), 1, viewport()->height() - 2);
    painter.setPen(QPen(CurrentTheme().Accent, 2));
    painter.setBrush(CurrentTheme().Field);
    painter.drawLine(QPointF(kSpace, y), QPointF(viewport()->width() - kTightSpace, y));
    painter.drawEllipse(QPointF(isRightToLeft() ? viewport()->width() - kSpace : kSpace, y), 3, 3);
}

}  // namespace orbelle::widgets
