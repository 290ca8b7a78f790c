// The list of layers, the top one in the first row.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QLineEdit>
#include <QString>
#include <vector>

#include "widgets/accessible_parts.h"

namespace orbelle::widgets {

// Where a picture stands in a square box: in its own size when it fits, else shrunk with its aspect
// kept (sides to the nearest pixel, at least 1), in either case centred. Empty for a size below 1.
QRect FitRect(const QSize& picture, int box);

struct LayerRow {
    QImage Image;  // kept and shared, so it must own its pixels
    QSize Size;    // of the layer on the page
    QString OpacityText;
    bool Visible = true;
    QString Name = {};    // empty: it goes by its place, "Icon 3"
    bool CanMove = true;  // to another place, by the hand
};

// Rows are dragged, shown and hidden, and named in place.
class LayerList : public QAbstractScrollArea, public AccessibleParts {
    Q_OBJECT

public:
    explicit LayerList(QWidget* parent = nullptr);

    int SelectedIndex() const { return selectedIndex_; }  // a layer's index, 0 the bottom; -1: none
    // Scrolls to a row that was not selected before.
    void SetSelectedIndex(int index);

    // One for each layer, from the bottom up.
    void SetRows(std::vector<LayerRow> rows);
    int Count() const { return static_cast<int>(rows_.size()); }

    // The name of the selected row to be typed over.
    void StartRename();
    // A name that is being typed counts from now on.
    void CommitName() { EndRename(true); }

    // Parts are rows from the top.
    QAccessible::Role WholeRole() const override { return QAccessible::List; }
    int PartCount() const override { return Count(); }
    QString PartName(int part) const override;
    QString PartValue(int part) const override;
    QRect PartPlace(int part) const override;
    QAccessible::Role PartRole(int) const override { return QAccessible::ListItem; }
    QAccessible::State PartState(int part) const override;
    int FocusedPart() const override;
    void PressPart(int part) override;

signals:
    // A press on the list, after the selection has followed it; also below the last row. Keys that
    // move the selection raise it as a left press in the middle of the row.
    void Clicked(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPoint& position);
    // After what the mouse did, and after the typing of a name: the keys may go elsewhere.
    void Picked();
    // The eye at the right of a row, or Space on the selected one.
    void EyePressed(int layer);
    // A row was dragged to where the layer `to` is.
    void Moved(int layer, int to);
    // A double click or F2, and a name that was typed.
    void Renamed(int layer, const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int LayerOfRow(int row) const { return Count() - row - 1; }
    QRect RowPlace(int row) const;             // in the viewport
    QRect Mirrored(const QRect& place) const;  // where the words go from right to left
    QRect EyePlace(int row) const;
    QRect TextPlace(int row) const;
    int RowAt(const QPoint& place) const;  // -1: none
    bool IsDragged(int row) const { return gap_ >= 0 && row == pressedRow_; }
    void FitScrollBar();
    void PaintRow(QPainter& painter, int row);
    void PaintThumbnail(QPainter& painter, const QRect& box, int layer);
    void PaintText(QPainter& painter, int row) const;
    void PaintEye(QPainter& painter, int row) const;
    void PaintDrop(QPainter& painter) const;
    void DragRow(int y);
    void EndDrag();
    void EndRename(bool takesName);
    void SelectRow(int row);
    void Select(int layer);

    struct Shown {
        QImage Image;      // keeps its pixels as they are
        QImage Thumbnail;  // of an image that shrinks, in screen pixels
    };

    // By layer index. Thumbnails are null until painted.
    std::vector<LayerRow> rows_;
    std::vector<QImage> thumbnails_;
    std::vector<Shown> shownBefore_;  // so that going from page to page and back makes none anew
    int selectedIndex_ = -1;

    int pressedRow_ = -1;  // that may be dragged from here on
    int pressedY_ = 0;
    int gap_ = -1;               // a row is being dragged to between this row and the one above it
    QLineEdit* name_ = nullptr;  // that is being typed
    int renamed_ = -1;           // the layer
};

}  // namespace orbelle::widgets
