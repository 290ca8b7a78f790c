#include "app/single_instance.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QLockFile>
#include <QTimer>
#include <algorithm>

#include "app/hand_over_place.h"

namespace orbelle::app {
namespace {

constexpr int kPatienceMilliseconds = 2000;
constexpr int kPeerMilliseconds = 1000;  // that a peer may take to say what it wants
constexpr int kLongestHead = 64;         // bytes
constexpr int kLongestCommandLine = 1 << 16;
constexpr int kMostPeers = 64;
constexpr QByteArrayView kProtocol = "Orbelle hand-over 1 ";
constexpr QByteArrayView kAnswer = "Orbelle hand-over 1 queued\n";

struct Request {
    bool IsWrong = false;  // else it is whole, or more of it is to come
    bool IsWhole = false;
    QByteArray CommandLine;
};

Request ReadRequest(const QByteArray& bytes) {
    const auto wrong = [] { return Request{true, false, {}}; };
    if (bytes.left(kProtocol.size()) != kProtocol.first(std::min(kProtocol.size(), bytes.size())))
        return wrong();
    const qsizetype headEnd = bytes.left(kLongestHead).indexOf('\n');
    if (headEnd < 0)
        return bytes.size() < kLongestHead ? Request() : wrong();
    bool isNumber = false;
    const int length = bytes.mid(kProtocol.size(), headEnd - kProtocol.size()).toInt(&isNumber);
    if (!isNumber || length < 0 || length > kLongestCommandLine)
        return wrong();
    const QByteArray text = bytes.mid(headEnd + 1);
    if (text.size() < length)
        return {};
    return {false, true, text.left(length)};
}

bool SomebodyListens(const QString& name) {
    QLocalSocket socket;
    socket.connectToServer(name);
    return socket.waitForConnected(kPatienceMilliseconds);
}

}  // namespace

HandOverEnd SingleInstance::HandOver(const QByteArray& commandLine) {
    const QString name = FindHandOverPlace().Server;
    if (name.isEmpty())
        return HandOverEnd::Nobody;
    const QDeadlineTimer deadline(kPatienceMilliseconds);
    const auto left = [&] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.setReadBufferSize(kLongestHead);
    socket.connectToServer(name);
    if (!socket.waitForConnected(left()))
        return deadline.hasExpired() ? HandOverEnd::NoAnswer : HandOverEnd::Nobody;
    LetOthersToFront();
    socket.write(kProtocol.toByteArray() + QByteArray::number(commandLine.size()) + '\n' +
                 commandLine);
    while (socket.bytesAvailable() < kAnswer.size() && socket.waitForReadyRead(left())) {
    }
    return socket.read(kAnswer.size()) == kAnswer ? HandOverEnd::Taken : HandOverEnd::NoAnswer;
}

SingleInstance::SingleInstance(QObject* parent) : QObject(parent) {
#ifdef _WIN32
    // Elsewhere the place does, and with options the toolkit takes the name from whoever has it.
    server_.setSocketOptions(QLocalServer::UserAccessOption);
#endif
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::Greet);
}

bool SingleInstance::Listen() {
    const auto [name, lockFile] = FindHandOverPlace();
    if (name.isEmpty())
        return false;
    // Of two copies that start at once, one would take the name from the other.
    QLockFile lock(lockFile);
    if (!lock.tryLock(kPatienceMilliseconds))
        return false;
    // Asked first: Windows lets several listen to one name.
    if (SomebodyListens(name))
        return false;
    if (server_.listen(name))
        return true;
    // A copy that crashed leaves its name behind.
    QLocalServer::removeServer(name);
    return server_.listen(name);
}

void SingleInstance::Greet() {
    while (QLocalSocket* peer = server_.nextPendingConnection()) {
        if (server_.findChildren<QLocalSocket*>().size() > kMostPeers) {
            delete peer;
            continue;
        }
        peer->setReadBufferSize(kLongestHead + kLongestCommandLine);
        connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
        connect(peer, &QLocalSocket::readyRead, this, [this, peer] { Read(*peer); });
        // One that never says all that it wants is not waited for.
        QTimer::singleShot(kPeerMilliseconds, peer, &QObject::deleteLater);
        Read(*peer);
    }
}

void SingleInstance::Read(QLocalSocket& peer) {
    const Request request = ReadRequest(peer.peek(kLongestHead + kLongestCommandLine));
    if (request.IsWrong)
        return peer.deleteLater();
    if (!request.IsWhole)
        return;
    peer.disconnect(this);
    peer.write(kAnswer.toByteArray());
    const bool isThere = (peer.flush() || peer.waitForBytesWritten(kPeerMilliseconds)) &&
                         peer.state() == QLocalSocket::ConnectedState;
    peer.disconnectFromServer();
    if (isThere)
        emit Received(request.CommandLine);
}

}  // namespace orbelle::app
