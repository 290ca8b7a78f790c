#include "app/single_instance.h"

#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>

namespace orbelle::app {
namespace {

constexpr int kPatienceMilliseconds = 1000;
constexpr int kLongestCommandLine = 1 << 16;  // bytes

// In a folder that only the user can write to, where the system has one.
QString ServerName() {
#ifdef Q_OS_UNIX
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           "/orbelle-main-window";
#else
    return kHandOverTopic;
#endif
}

}  // namespace

bool SingleInstance::HandOver(const QString& commandLine) {
    QLocalSocket socket;
    socket.connectToServer(ServerName());
    if (!socket.waitForConnected(kPatienceMilliseconds))
        return false;
    socket.write(commandLine.toUtf8());
    socket.flush();
    socket.waitForBytesWritten(kPatienceMilliseconds);
    socket.disconnectFromServer();
    return true;
}

SingleInstance::SingleInstance(QObject* parent) : QObject(parent) {
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::Read);
    if (!server_.listen(ServerName())) {
        // A copy that crashed leaves its name behind.
        QLocalServer::removeServer(ServerName());
        server_.listen(ServerName());
    }
}

void SingleInstance::Read() {
    QLocalSocket* socket = server_.nextPendingConnection();
    const auto finish = [this, socket] {
        const QByteArray text = socket->read(kLongestCommandLine);
        socket->deleteLater();
        emit Received(QString::fromUtf8(text));
    };
    if (socket->state() == QLocalSocket::UnconnectedState)
        return finish();
    connect(socket, &QLocalSocket::disconnected, this, finish);
    // One that never says that it is done is not waited for.
    QTimer::singleShot(kPatienceMilliseconds, socket, &QLocalSocket::disconnectFromServer);
}

}  // namespace orbelle::app
