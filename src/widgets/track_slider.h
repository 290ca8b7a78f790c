// The flat slider.
#pragma once

#include <QBasicTimer>
#include <QSlider>

namespace orbelle::widgets {

// A horizontal QSlider with a look and a hand of its own: only its thumb is dragged, and a press
// beside the thumb takes it there first. Keys and notches of the wheel that follow each other are
// one drag; the wheel counts only while the slider has the focus. The scale begins at 0 even where
// the least value is above it.
class TrackSlider : public QSlider {
    Q_OBJECT

public:
    explicit TrackSlider(QWidget* parent = nullptr);

    // Moves the thumb; raises none of the signals below.
    void SetValue(int value);

    // Ends a run of keys or notches, as a pause and leaving the slider do.
    void EndRun();

    QSize sizeHint() const override;

signals:
    // One drag: a press, any number of changes, a release; or, after Escape, a change back to the
    // value before, and that it was given up.
    void Pressed();
    void Changed(int value);
    void Released();
    void GivenUp();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
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
    void GiveUp();
    void Step(int step);

    int thumbLeft_ = 0;
    int downX_ = 0;
    int downLeft_ = 0;
    int wheelRest_ = 0;    // of a notch, in eighths of a degree
    int valueBefore_ = 0;  // the drag or the run
    bool isOverThumb_ = false;
    bool dragging_ = false;
    bool running_ = false;
    QBasicTimer pause_;
};

}  // namespace orbelle::widgets
