// The flat slider.
#pragma once

#include <QBasicTimer>
#include <QSlider>

namespace orbelle::widgets {

// A horizontal QSlider with a look and a hand of its own: only its thumb is dragged, and a press
// beside the thumb takes it there first. Keys and notches of the wheel that follow each other are
// one drag, and so is a double click where the slider has a place of rest; the wheel counts only
// while the slider has the focus. The scale begins at 0 even where the least value is above it.
class TrackSlider : public QSlider {
    Q_OBJECT

public:
    explicit TrackSlider(QWidget* parent = nullptr);

    // Moves the thumb; raises none of the signals below.
    void SetValue(int value);

    // Where it rests: a double click on the track takes it there, and unless that is an end, the
    // track has a tick there, from which it is lit. A click waits for the second one before its
    // release is told, so that both are one drag.
    void SetNeutral(int value);

    // A track that shows what the slider does.
    enum class Groove {
        Lit,         // as far as the value goes
        Hues,        // the circle of hues
        Saturation,  // from grey to the colour
        Opacity      // from checks to the colour
    };
    void SetGroove(Groove groove, const QColor& color = {});

    // A drag by other means than the thumb.
    void BeginDrag();
    void Drag(int value);  // the nearest that the slider has
    void EndDrag();
    // A whole one, for a value that was typed. Nothing for the value that it has.
    void TakeValue(int value);

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
    void mouseDoubleClickEvent(QMouseEvent* event) override;
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
    QPoint PlaceFrom(const QMouseEvent& event) const;  // as if the track went from left to right
    QRect ThumbRect() const;
    void PlaceThumb();
    void DragThumb(int left, int direction);
    double PlaceOf(int value) const;  // of the thumb's middle
    void PaintGroove(QPainter& painter) const;
    void GiveUp();
    void Step(int step);

    int thumbLeft_ = 0;
    int downX_ = 0;
    int downLeft_ = 0;
    int wheelRest_ = 0;    // of a notch, in eighths of a degree
    int valueBefore_ = 0;  // the drag or the run
    int neutral_ = -1;     // none
    Groove groove_ = Groove::Lit;
    QColor color_;        // of the groove
    bool moved_ = false;  // since the press
    bool isOverThumb_ = false;
    bool dragging_ = false;
    bool running_ = false;
    QBasicTimer pause_;
};

}  // namespace orbelle::widgets
