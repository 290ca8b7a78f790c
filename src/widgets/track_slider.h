// The flat slider.
#pragma once

#include <QSlider>

namespace orbelle::widgets {

// A horizontal QSlider with a look and a hand of its own: only its thumb is dragged, and a press
// beside the thumb takes it there first. A key and a notch of the wheel are a drag of one step. The
// scale begins at 0 even where the least value is above it.
class TrackSlider : public QSlider {
    Q_OBJECT

public:
    explicit TrackSlider(QWidget* parent = nullptr);

    // Moves the thumb; raises none of the signals below.
    void SetValue(int value);

    QSize sizeHint() const override;

signals:
    // One drag: a press, any number of changes, a release.
    void Pressed();
    void Changed(int value);
    void Released();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    int TrackWidth() const;
    QRect ThumbRect() const;
    void PlaceThumb();
    void DragThumb(int left, int direction);
    void EndDrag();
    void Step(int step);

    int thumbLeft_ = 0;
    int downX_ = 0;
    int downLeft_ = 0;
    int wheelRest_ = 0;  // of a notch, in eighths of a degree
    bool isOverThumb_ = false;
    bool dragging_ = false;
};

}  // namespace orbelle::widgets
