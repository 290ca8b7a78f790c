#include "widgets/layer_list.h"

#include <QHash>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "widgets/theme.h"

namespace orbelle::widgets {
namespace {

constexpr int kRowHeight = 40;
constexpr int kThumbnailSize = kRowHeight - 8;
constexpr int kTextMargin = 8;

constexpr QColor kCheckerColor(0, 0, 0, 30);

// Pictures above this are shrunk row by row of the result: QImage::scaled would make a copy of the
// whole picture in another format.
constexpr qsizetype kLargeBytes = 16 << 20;
// Larger ones are not kept alive for their thumbnails when they are shown no more.
constexpr qsizetype kMostKeptBytes = 4 << 20;

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

}  // namespace

QRect FitRect(const QSize& picture, int box) {
    if (picture.isEmpty())
        return {};
    QSize size = picture;
    if (size.width() > box || size.height() > box) {
        const double scale =
            std::min(double(box) / picture.width(), double(box) / picture.height());
        const auto scaled = [scale](int side) {
            return std::max(static_cast<int>(std::nearbyint(side * scale)), 1);
        };
        size = {scaled(picture.width()), scaled(picture.height())};
    }
    return {QPoint((box - size.width()) / 2, (box - size.height()) / 2), size};
}

LayerList::LayerList(QWidget* parent) : QAbstractScrollArea(parent) {
    ShowPartsToAssistiveTools();
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(kRowHeight);
    FitScrollBar();
}

void LayerList::Select(int layer) {
    selectedIndex_ = std::max(layer, -1);
    viewport()->update();
}

void LayerList::SetSelectedIndex(int index) {
    const bool changes = index != selectedIndex_;
    Select(index);
    const int row = FocusedPart();
    if (!changes || row < 0)
        return;
    const QRect place = RowPlace(row);
    QScrollBar& bar = *verticalScrollBar();
    if (place.top() < 0)
        bar.setValue(bar.value() + place.top());
    else if (place.bottom() >= viewport()->height())
        bar.setValue(bar.value() + place.bottom() + 1 - viewport()->height());
}

void LayerList::SetRows(std::vector<LayerRow> rows) {
    QHash<const uchar*, QImage> known;
    std::vector<Shown> shown;
    for (const Shown& each : shownBefore_)
        known.insert(each.Image.constBits(), each.Thumbnail);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (thumbnails_[i].isNull())
            continue;
        known.insert(rows_[i].Image.constBits(), thumbnails_[i]);
        if (rows_[i].Image.sizeInBytes() <= kMostKeptBytes)
            shown.push_back({rows_[i].Image, thumbnails_[i]});
    }
    // `rows_` and `shownBefore_` keep the pixels at these addresses until here.
    thumbnails_.clear();
    for (const LayerRow& row : rows)
        thumbnails_.push_back(known.value(row.Image.constBits()));
    rows_ = std::move(rows);
    if (!shown.empty())
        shownBefore_ = std::move(shown);
    FitScrollBar();
    viewport()->update();
}

void LayerList::FitScrollBar() {
    const int height = viewport()->height();
    verticalScrollBar()->setRange(0, std::max(kRowHeight * Count() + 2 - height, 0));
    verticalScrollBar()->setPageStep(height);
}

QRect LayerList::RowPlace(int row) const {
    return {0, row * kRowHeight - verticalScrollBar()->value(), viewport()->width(), kRowHeight};
}

void LayerList::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), CurrentTheme().Field);
    for (int row = 0; row < Count(); ++row)
        if (RowPlace(row).intersects(event->rect()))
            PaintRow(painter, row);
    if (hasFocus()) {
        painter.setPen(CurrentTheme().Accent);
        painter.setBrush(Qt::NoBrush);
        const int row = FocusedPart();
        const QRect place = row < 0 ? viewport()->rect() : RowPlace(row);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void LayerList::PaintRow(QPainter& painter, int row) {
    const int layer = LayerOfRow(row);
    const LayerRow& shown = rows_[layer];
    const QRect place = RowPlace(row);
    if (layer == selectedIndex_)
        painter.fillRect(place, PressedColor());
    else if (!shown.Visible)
        painter.fillRect(place, BandColor());

    const QRect box(place.topLeft(), QSize(kRowHeight, kRowHeight));
    DrawChecker(painter, box, kCheckerColor);
    PaintThumbnail(painter, box, layer);
    PaintText(painter, place.adjusted(kRowHeight + kTextMargin, 0, -4, 0), PartName(row),
              shown.OpacityText);
    painter.fillRect(place.x(), place.bottom(), place.width(), 1, HairlineColor());
}

void LayerList::PaintThumbnail(QPainter& painter, const QRect& box, int layer) {
    const LayerRow& row = rows_[layer];
    const int margin = (kRowHeight - kThumbnailSize) / 2;
    const QRect place =
        FitRect(row.Size, kThumbnailSize).translated(box.topLeft() + QPoint(margin, margin));
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

void LayerList::PaintText(QPainter& painter, const QRect& row, const QString& name,
                          const QString& opacity) const {
    const auto draw = [&](const QRect& line, int points, const QString& text) {
        const QFont font = ChromeFont(points);
        painter.setFont(font);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, line.width()));
    };
    painter.setPen(CurrentTheme().Text);
    draw(row.adjusted(0, 2, 0, -kRowHeight / 2), 9, name);
    draw(row.adjusted(0, kRowHeight / 2, 0, -2), 8, opacity);
}

void LayerList::resizeEvent(QResizeEvent*) {
    FitScrollBar();
}

void LayerList::mousePressEvent(QMouseEvent* event) {
    for (int row = 0; row < Count(); ++row)
        if (RowPlace(row).contains(event->pos()))
            Select(LayerOfRow(row));
    AnnounceFocus(*this, FocusedPart());
    emit Clicked(event->button(), event->modifiers(), event->pos());
    emit Picked();
}

void LayerList::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void LayerList::SelectRow(int row) {
    row = std::clamp(row, 0, Count() - 1);
    if (LayerOfRow(row) == selectedIndex_)
        return;
    SetSelectedIndex(LayerOfRow(row));
    AnnounceFocus(*this, row);
    emit Clicked(Qt::LeftButton, Qt::NoModifier, RowPlace(row).center());
}

void LayerList::keyPressEvent(QKeyEvent* event) {
    const int row = FocusedPart();
    if (Count() > 0) {
        switch (event->key()) {
            case Qt::Key_Up:
                return SelectRow(row - 1);
            case Qt::Key_Down:
                return SelectRow(row + 1);
            case Qt::Key_Home:
                return SelectRow(0);
            case Qt::Key_End:
                return SelectRow(Count() - 1);
        }
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void LayerList::focusInEvent(QFocusEvent*) {
    AnnounceFocus(*this, FocusedPart());
    viewport()->update();
}

void LayerList::focusOutEvent(QFocusEvent*) {
    viewport()->update();
}

QString LayerList::PartName(int part) const {
    return QString("Icon %1").arg(Count() - part);
}

QString LayerList::PartValue(int part) const {
    return rows_[LayerOfRow(part)].OpacityText;
}

QRect LayerList::PartPlace(int part) const {
    return RowPlace(part);
}

QAccessible::State LayerList::PartState(int part) const {
    QAccessible::State state;
    state.selectable = true;
    state.selected = LayerOfRow(part) == selectedIndex_;
    state.offscreen = !RowPlace(part).intersects(viewport()->rect());
    return state;
}

int LayerList::FocusedPart() const {
    return selectedIndex_ >= 0 && selectedIndex_ < Count() ? Count() - selectedIndex_ - 1 : -1;
}

void LayerList::PressPart(int part) {
    SelectRow(part);
}

}  // namespace orbelle::widgets
