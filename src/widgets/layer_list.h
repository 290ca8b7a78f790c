// The list of layers, the top one in the first row.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
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
};

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
    // After Clicked, by the mouse alone: the keys may go elsewhere.
    void Picked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int LayerOfRow(int row) const { return Count() - row - 1; }
    QRect RowPlace(int row) const;  // in the viewport
    void FitScrollBar();
    void PaintRow(QPainter& painter, int row);
    void PaintThumbnail(QPainter& painter, const QRect& box, int layer);
    void PaintText(QPainter& painter, const QRect& row, const QString& name,
                   const QString& opacity) const;
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
};

}  // namespace orbelle::widgets
