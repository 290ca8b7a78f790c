// The signals by which a system ends a program: SIGTERM, SIGHUP and SIGINT. Windows has none.
#pragma once

#include <QObject>

class QSocketNotifier;

namespace orbelle::app {

// From here on SIGPIPE ends nothing. While it lives, those signals arrive in the event loop instead
// of ending the program. One at a time.
class EndingSignals : public QObject {
    Q_OBJECT

public:
    explicit EndingSignals(QObject* parent = nullptr);
    ~EndingSignals() override;

signals:
    void Received();

private:
    QSocketNotifier* notifier_ = nullptr;
};

}  // namespace orbelle::app
