// One copy of the program for each user: a second one hands over its command line and ends.
#pragma once

#include <QByteArray>
#include <QLocalServer>

namespace orbelle::app {

enum class HandOverEnd {
    Taken,     // the running copy will open it
    Nobody,    // no copy runs
    NoAnswer,  // something listens and does not answer: a copy that hangs, another program
};

// The talk between two copies: the name of the protocol with its version, the number of bytes, a
// line feed and the bytes; the running copy answers with a line once it has the text. Who gets no
// answer opens his file himself, and the text of one who has gone away is dropped: it would be
// opened twice.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    // Hands the text over to the copy that runs already, within two seconds.
    static HandOverEnd HandOver(const QByteArray& commandLine);

    explicit SingleInstance(QObject* parent = nullptr);

    // Takes what later copies send from now on. False: another copy does already, or there is no
    // place to do it in.
    bool Listen();

signals:
    // Empty: only the window is wanted.
    void Received(const QByteArray& commandLine);

private:
    void Greet();
    void Read(QLocalSocket& peer);

    QLocalServer server_;
};

}  // namespace orbelle::app
