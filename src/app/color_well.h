// A well that shows a colour with its alpha.
#pragma once

#include <QWidget>

#include "graphics/color.h"

namespace orbelle::app {

class ColorWell : public QWidget {
    Q_OBJECT

public:
    explicit ColorWell(const QString& name, QWidget* parent = nullptr);

    // `penWidth` of the outline: 2 for the well in use, else 1.
    void Show(graphics::Argb color, int penWidth);

    QSize sizeHint() const override { return {34, 26}; }

signals:
    void Clicked();
    void DoubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    graphics::Argb color_ = 0;
    int penWidth_ = 1;
};

}  // namespace orbelle::app
