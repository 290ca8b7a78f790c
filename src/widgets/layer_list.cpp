#include "widgets/layer_list.h"

#include <QHash>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "widgets/layer_list_metrics.h"
#include "widgets/words.h"

namespace orbelle::widgets {
namespace {

// Larger ones are not kept alive for their thumbnails when they are shown no more.
constexpr qsizetype kMostKeptBytes = 4 << 20;

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
    verticalScrollBar()->setSingleStep(LayerRowHeight());
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
    if (pressedRow_ >= Count())
        EndDrag();
    if (renamed_ >= Count())
        EndRename(false);
}

void LayerList::FitScrollBar() {
    const int height = viewport()->height();
    verticalScrollBar()->setRange(0, std::max(LayerRowHeight() * Count() + 2 - height, 0));
    verticalScrollBar()->setPageStep(height);
}

QRect LayerList::RowPlace(int row) const {
    return {0, row * LayerRowHeight() - verticalScrollBar()->value(), viewport()->width(),
            LayerRowHeight()};
}

void LayerList::resizeEvent(QResizeEvent*) {
    FitScrollBar();
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
    if (gap_ >= 0 && event->key() == Qt::Key_Escape)
        return EndDrag();
    if (Count() > 0) {
        switch (event->key()) {
            case Qt::Key_Space:
                if (row < 0)
                    break;
                emit EyePressed(selectedIndex_);
                return;
            case Qt::Key_F2:
                return StartRename();
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
    const QString& name = rows_[LayerOfRow(part)].Name;
    return name.isEmpty() ? Words::tr("Icon %1").arg(Count() - part) : name;
}

QString LayerList::PartValue(int part) const {
    const LayerRow& row = rows_[LayerOfRow(part)];
    return row.Visible ? row.OpacityText : Words::tr("%1, hidden").arg(row.OpacityText);
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
