// The options of the brush eraser: a panel that slides in from below.
#pragma once

#include <QTimer>
#include <QWidget>

#include "app/command_runner.h"

class QLabel;

namespace orbelle::widgets {
class TrackSlider;
}

namespace orbelle::app {

// Stands in its parent from top to bottom when it is in, below it when it is out.
class BrushPanel : public QWidget {
    Q_OBJECT

public:
    explicit BrushPanel(CommandRunner& commands, QWidget* parent);

    void ShowStates(const editing::Sliders& sliders);
    // In or out, step by step; once in, a frame around the options blinks.
    void Slide(bool open);
    // After the parent has a new size.
    void Place();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void StepSlide();
    void StepBlink();

    widgets::TrackSlider* size_ = nullptr;
    widgets::TrackSlider* opacity_ = nullptr;
    QLabel* sizeValue_ = nullptr;
    QLabel* opacityValue_ = nullptr;
    QTimer slide_;
    QTimer blink_;
    int blinks_ = 0;
    bool frame_ = false;
    bool open_ = false;
};

}  // namespace orbelle::app
