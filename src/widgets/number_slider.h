// The numeric slider: a value that can be typed, two spin arrows and a track that opens below.
#pragma once

#include <QBasicTimer>
#include <QLineEdit>
#include <QWidget>

#include "widgets/slider_scale.h"
#include "widgets/slider_track.h"

namespace orbelle::widgets {

class NumberSlider : public QWidget {
    Q_OBJECT

public:
    explicit NumberSlider(QWidget* parent = nullptr);
    ~NumberSlider() override;

    void SetRange(int minValue, int maxValue);
    int Value() const { return value_; }
    // Does not raise Changed. Values beyond the range are taken, as typed ones are.
    void SetValue(int value);
    // Whether each digit that is typed counts at once, as for a preview.
    void SetFollowsTyping(bool follows) { followsTyping_ = follows; }
    // The keyboard goes to the number, all of it selected.
    void FocusNumber();
    // Ends the typing of a number and a run of keys, as leaving the field does.
    void CommitTyping();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // The user typed, spun or dragged the value. A typed one counts when it is committed with
    // Return or by leaving the field or the window.
    void Changed(int value);
    // One gesture lies between these two: a drag on the track, a press of a spin arrow, keys that
    // follow each other, a typed number.
    void Pressed();
    void Released();
    // Return or Escape: the keys may go elsewhere.
    void Finished();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    class Accessible;

    QRect SpinRect(int direction) const;
    QRect OpenRect() const;
    void TakeText();
    void CommitText();
    void StepByKey(int direction);
    void EndSteps();
    bool TakeShortcut(QKeyEvent& event) const;
    void StartSpin(int direction);
    void EndSpin();
    void Spin(int direction);
    void ChangeTo(int value);
    void Store(int value);

    SliderScale scale_;
    int minValue_ = 0;
    int value_ = 0;
    int spinning_ = 0;  // the arrow that is held: +1 or -1, 0 none
    bool followsTyping_ = false;
    bool typing_ = false;
    bool stepping_ = false;  // by keys
    int valueBefore_ = 0;    // a gesture, which Escape brings back
    QBasicTimer repeat_;
    QBasicTimer pause_;
    QLineEdit* field_;
    SliderTrack* track_;
};

}  // namespace orbelle::widgets
