// The track of NumberSlider, a small pop-up.
#pragma once

#include <QWidget>

namespace orbelle::widgets {

class SliderTrack : public QWidget {
    Q_OBJECT

public:
    explicit SliderTrack(QWidget* parent);

    // The left edge of the thumb, from the track's beginning, in units of the scale
    // (slider_scale.h): pixels where the pop-up has its own width.
    double Place() const { return place_; }
    void SetPlace(double place);
    // Shows it below the control and as wide, or above where the screen ends.
    void OpenAt(const QWidget& control);

    // In the coordinates of the pop-up.
    QRectF ThumbRect() const;

signals:
    // A drag of the thumb; `x` is the pointer's, from the track's beginning, in the same units.
    void Pressed();
    void Dragged(double x);
    void Released();
    void GivenUp();  // by Escape, in place of the release
    // An arrow key: +1 or -1.
    void Stepped(int direction);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void EndDrag();
    int Travel() const;  // of the thumb, pixels

    double place_ = 0;
    bool dragging_ = false;
};

}  // namespace orbelle::widgets
