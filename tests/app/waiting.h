// Waiting for the window without fixed pauses.
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>
#include <functional>

namespace orbelle::testing {

// Runs the event loop until the condition holds. False: it did not within a generous time.
inline bool WaitUntil(const std::function<bool()>& condition, int seconds = 60) {
    const QDeadlineTimer deadline(seconds * 1000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QApplication::processEvents();
        QThread::msleep(2);
    }
    return true;
}

// Once the next modal dialog is open: hands it to `answer`, which is to close it.
template <typename Dialog>
void AnswerDialog(std::function<void(Dialog&)> answer) {
    QTimer::singleShot(1, qApp, [answer] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget()))
            answer(*dialog);
        else
            AnswerDialog<Dialog>(answer);
    });
}

}  // namespace orbelle::testing
