// A mouse and a keyboard for controls, and a record of what they tell.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QWidget>

namespace orbelle::testing {

inline void SendMouse(QWidget& widget, QEvent::Type type, const QPointF& place,
                      Qt::MouseButton button, Qt::MouseButtons held,
                      Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, keys);
    QApplication::sendEvent(&widget, &event);
}

inline void Press(QWidget& widget, const QPointF& place) {
    SendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
}

inline void DragTo(QWidget& widget, const QPointF& place) {
    SendMouse(widget, QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
}

inline void Release(QWidget& widget, const QPointF& place) {
    SendMouse(widget, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
}

inline void Click(QWidget& widget, const QPointF& place) {
    Press(widget, place);
    Release(widget, place);
}

inline void Strike(QWidget& widget, Qt::Key key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}

// What a slider tells, as "pressed 7 8 released".
class Gestures {
public:
    template <typename Slider>
    explicit Gestures(Slider& slider) {
        QObject::connect(&slider, &Slider::Pressed, [this] { told_ << "pressed"; });
        QObject::connect(&slider, &Slider::Changed,
                         [this](int value) { told_ << QString::number(value); });
        QObject::connect(&slider, &Slider::Released, [this] { told_ << "released"; });
        if constexpr (requires { &Slider::GivenUp; })
            QObject::connect(&slider, &Slider::GivenUp, [this] { told_ << "given-up"; });
        if constexpr (requires { &Slider::Finished; })
            QObject::connect(&slider, &Slider::Finished, [this] { told_ << "finished"; });
    }

    // Since the last call.
    std::string Told() { return std::exchange(told_, {}).join(' ').toStdString(); }

private:
    QStringList told_;
};

}  // namespace orbelle::testing
