#include "platform/devices/LocalOneProgram.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDataStream>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr unsigned long BetweenTries = 50;  // milliseconds
const QByteArray Answer = "taken";

QString LockPath(const QString& folder) {
    return folder + u"/.running-%1"_s.arg(getuid());
}

/// Short, because a socket's path may have 107 characters, and the same for a folder's every start:
/// what a crash leaves is used again.
QString SocketName(const QString& folder, const QString& socketFolder) {
    const QByteArray place = QFileInfo(folder).canonicalFilePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex();
    return socketFolder + u"/tempolark-"_s + QString::fromLatin1(hash.left(16));
}

QByteArray Packed(const QString& text) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << text;
    return bytes;
}

}  // namespace

LocalOneProgram::LocalOneProgram(const QString& folder, const QString& socketFolder,
                                 const Patience& patience)
    : folder_(folder),
      socketName_(SocketName(folder, socketFolder)),
      patience_(patience),
      lock_(LockPath(folder)) {
    // With such an option the server moves its socket over what a crashed program has left.
    server_.setSocketOptions(QLocalServer::UserAccessOption);
}

QString LocalOneProgram::SocketFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

// The other one may be about to listen, or about to end: then the next try finds out.
OneProgram::Outcome LocalOneProgram::Claim(const QString& commandLine) {
    const QDeadlineTimer start(patience_.Start);
    QDeadlineTimer answer(QDeadlineTimer::Forever);
    do {
        switch (lock_.Take(socketName_.toUtf8())) {
            case LockFile::Outcome::Taken:
                return {Role::Alone, {}};
            case LockFile::Outcome::Failed:
                return {Role::Refused, u"The folder %1 can't be written"_s.arg(folder_)};
            case LockFile::Outcome::HeldByAnother:
                break;
        }
        const QDeadlineTimer once(patience_.Answer);
        switch (HandOver(commandLine, std::min(once, answer))) {
            case Reply::Taken:
                return {Role::HandedOver, {}};
            case Reply::Silence:
                answer = std::min(once, answer);
                break;
            case Reply::Unreachable:
                break;
        }
        QThread::msleep(BetweenTries);
    } while (!start.hasExpired() && !answer.hasExpired());
    return {Role::Refused,
            u"Tempolark runs already with the folder %1, and does not answer"_s.arg(folder_)};
}

LocalOneProgram::Reply LocalOneProgram::HandOver(const QString& commandLine,
                                                 const QDeadlineTimer& deadline) const {
    const auto left = [&] { return static_cast<int>(deadline.remainingTime()); };
    const QString name = QString::fromUtf8(lock_.Note());
    QLocalSocket socket;
    if (!name.isEmpty()) {
        socket.connectToServer(name);
        socket.waitForConnected(left());
    }
    if (socket.state() != QLocalSocket::ConnectedState) {
        return Reply::Unreachable;
    }
    socket.write(Packed(commandLine));
    QByteArray answer;
    while (answer.size() < Answer.size() && socket.state() == QLocalSocket::ConnectedState &&
           socket.waitForReadyRead(left())) {
        answer += socket.readAll();
    }
    return answer == Answer ? Reply::Taken : Reply::Silence;
}

QString LocalOneProgram::Listen(std::function<void(const QString&)> onCommandLine) {
    onCommandLine_ = std::move(onCommandLine);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::readyRead, socket,
                             [this, socket] { Receive(*socket); });
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    return server_.listen(socketName_)
               ? QString()
               : u"Later starts can't be heard: %1"_s.arg(server_.errorString());
}

// The answer goes first: what the command line brings about may take its time.
void LocalOneProgram::Receive(QLocalSocket& socket) {
    QDataStream stream(&socket);
    stream.startTransaction();
    QString commandLine;
    stream >> commandLine;
    if (!stream.commitTransaction()) {
        return;
    }
    socket.write(Answer);
    socket.flush();
    socket.disconnectFromServer();
    QMetaObject::invokeMethod(
        &server_, [this, commandLine] { onCommandLine_(commandLine); }, Qt::QueuedConnection);
}

}  // namespace platform
