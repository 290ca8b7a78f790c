// The dialog "Choose Icon Format": which image of an icon file to take.
#pragma once

#include <QDialog>

#include "app/icon_strip.h"

namespace orbelle::app {

// The strip of thumbnails: a press or the arrow keys select, a double click chooses.
class IconStripView : public QWidget {
    Q_OBJECT

public:
    explicit IconStripView(const std::vector<formats::IconEntryImage>& offered);

    int SelectedIndex() const { return strip_.SelectedIndex; }
    void Select(int index);

signals:
    void DoubleClicked();
    // The cell, in widget pixels, that is to be visible.
    void SelectionMoved(const QRect& cell);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PaintCell(QPainter& painter, int index) const;
    void TellSelection();

    IconImageStrip strip_;
};

// Starts with the first image selected; with none offered the strip is empty.
class IconImagesDialog : public QDialog {
    Q_OBJECT

public:
    explicit IconImagesDialog(const std::vector<formats::IconEntryImage>& offered,
                              QWidget* parent = nullptr);

    // The place among those offered; -1: none.
    int SelectedIndex() const { return strip_->SelectedIndex(); }

private:
    IconStripView* strip_;
};

}  // namespace orbelle::app
