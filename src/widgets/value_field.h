// The number beside a slider.
#pragma once

#include <QLineEdit>
#include <QPoint>

namespace orbelle::widgets {

class TrackSlider;

// Shows a value, lets it be typed and is dragged to both sides as the slider's thumb is. Whatever
// the user does here the slider tells, as a drag.
class ValueField : public QLineEdit {
    Q_OBJECT

public:
    // The slider stands at `offset` where the number is 0. It has to live longer.
    ValueField(TrackSlider& slider, int offset, const QString& unit = {});

    // A number that is being typed stays.
    void Show(int number);
    // What is being typed counts from now on, or never does.
    void CommitTyping();
    void GiveUpTyping();

signals:
    // Return or Escape: the keys may go elsewhere.
    void Finished();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void EndScrub();

    TrackSlider* slider_;
    int offset_;
    QString unit_;
    QString shown_;
    bool typing_ = false;
    bool pressed_ = false;  // to be typed in or dragged: nobody knows yet
    bool scrubbing_ = false;
    int downX_ = 0;  // on the screen
    int downValue_ = 0;
};

}  // namespace orbelle::widgets
