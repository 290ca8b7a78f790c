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

class LayerList : public QAbstractScrollArea, public AccessibleParts {
    Q_OBJECT

public:
    explicit LayerList(QWidget* parent = nullptr);

    int SelectedIndex() const;  // a layer's index, 0 the bottom; -1: none
    void SetSelectedIndex(int index);

    // Rows are filled from the bottom layer up, then drawn. Width and height are the layer's on the
    // page; the text is its opacity as ".50". The image is kept and shared, so it must own its
    // pixels.
    void Clean();
    void LoadImage(const QImage& image, int width, int height, const QString& opacityText,
                   bool visible);
    // One row anew; an index that has no row changes nothing.
    void UpdateImage(const QImage& image, int width, int height, int index,
                     const QString& opacityText, bool visible);
    void DrawLayers();
    int Count() const;

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

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Item {
        QImage Image;
        QSize Size;  // of the layer on the page
        QString OpacityText;
        bool Visible = true;
        QImage Thumbnail;  // the image shrunk to its place in screen pixels; null until painted
    };

    int LayerOfRow(int row) const { return Count() - row - 1; }
    QRect RowPlace(int row) const;  // in the viewport
    void FitScrollBar();
    void PaintRow(QPainter& painter, int row);
    void PaintThumbnail(QPainter& painter, const QRect& box, Item& item) const;
    void PaintText(QPainter& painter, const QRect& row, const QString& name,
                   const QString& opacity) const;
    void SelectRow(int row);

    std::vector<Item> items_;  // by layer index
    int selectedIndex_ = -1;
};

}  // namespace orbelle::widgets
