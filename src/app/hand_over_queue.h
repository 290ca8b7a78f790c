// Command lines from other copies of the program, on their way to the window.
#pragma once

#include <QByteArrayList>
#include <QObject>
#include <QTimer>
#include <functional>

namespace orbelle::app {

// Keeps each until the window is free for it, and opens them in order, one at a time.
class HandOverQueue : public QObject {
    Q_OBJECT

public:
    // None is opened yet. `open` may ask the user and return long after.
    void Add(const QByteArray& commandLine);
    // From now on they are, whenever `isFree` says so.
    void Start(std::function<bool()> isFree, std::function<void(const QByteArray&)> open);

    const QByteArrayList& Waiting() const { return waiting_; }

signals:
    void Added();

private:
    void OpenNext();

    QByteArrayList waiting_;
    std::function<bool()> isFree_;
    std::function<void(const QByteArray&)> open_;
    QTimer look_;  // whether the window is free
    bool opening_ = false;
};

}  // namespace orbelle::app
