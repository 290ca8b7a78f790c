// What the colour dialog is made of.
#pragma once

#include <QAbstractButton>
#include <QSlider>
#include <QWidget>

#include "graphics/color.h"

namespace orbelle::app {

// All colours of one hue: saturation from left to right, brightness from bottom to top, 0 to 255
// each. The pointer takes the place that it is pressed on; arrow keys go by one, with Shift by ten.
class ColorSquare : public QWidget {
    Q_OBJECT

public:
    explicit ColorSquare(QWidget* parent = nullptr);

    // Raises no signal. `hue` from 0 to 359.
    void Show(int hue, int saturation, int brightness);

    QSize sizeHint() const override;

signals:
    void Chosen(int saturation, int brightness);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Choose(int saturation, int brightness);
    void ChooseAt(const QPointF& place);

    int hue_ = 0;
    int saturation_ = 0;
    int brightness_ = 0;
};

// An upright slider along a row of colours, the least value at the bottom.
class ColorStrip : public QSlider {
    Q_OBJECT

public:
    explicit ColorStrip(QWidget* parent = nullptr);

    // The colours of the row from the top; they may be transparent.
    void ShowColors(const QGradientStops& colors);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void MoveTo(double y);

    QGradientStops colors_;
};

// Two colours side by side on a checkerboard, the new one at the left.
class ColorComparison : public QWidget {
    Q_OBJECT

public:
    explicit ColorComparison(graphics::Argb oldColor, QWidget* parent = nullptr);

    void Show(graphics::Argb newColor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    graphics::Argb old_;
    graphics::Argb new_ = 0;
};

// A colour to be chosen by a click; without one it is an empty place.
class ColorCell : public QAbstractButton {
    Q_OBJECT

public:
    explicit ColorCell(QWidget* parent = nullptr);

    // Its name for the user is the colour's text.
    void Show(graphics::Argb color);
    graphics::Argb Color() const { return color_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    graphics::Argb color_ = 0;
};

}  // namespace orbelle::app
