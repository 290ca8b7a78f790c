// The options of the brush eraser: a panel that slides in from below.
#pragma once

#include <QTimer>
#include <QWidget>

#include "app/command_runner.h"

namespace orbelle::widgets {
class TrackSlider;
class ValueField;
}  // namespace orbelle::widgets

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
    // A number that is being typed counts from now on.
    void CommitTyping();

signals:
    // A number was typed: the keys may go elsewhere.
    void KeysFree();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void StepSlide();
    void StepBlink();

    struct Option {
        widgets::TrackSlider* Slider = nullptr;
        widgets::ValueField* Value = nullptr;

        void Show(int value) const;
    };

    Option AddOption(CommandRunner& commands, const QString& caption, const char* name,
                     editing::Slider editing::Sliders::*state,
                     void (*change)(editing::Editor&, int), const QString& unit);

    Option size_;
    Option opacity_;
    QTimer slide_;
    QTimer blink_;
    int blinks_ = 0;
    bool frame_ = false;
    bool open_ = false;
};

}  // namespace orbelle::app
