// One copy of the program for each user: a second one hands over its command line and ends.
#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

namespace orbelle::app {

// What a copy sends to the running one.
inline constexpr char kHandOverTopic[] = "Orbelle|MainWindow";

class SingleInstance : public QObject {
    Q_OBJECT

public:
    // Sends the text to the copy that runs already. False: none does.
    static bool HandOver(const QString& commandLine);

    // Takes what later copies send. Nothing is told for an empty command line.
    explicit SingleInstance(QObject* parent = nullptr);

signals:
    void Received(const QString& commandLine);

private:
    void Read();

    QLocalServer server_;
};

}  // namespace orbelle::app
