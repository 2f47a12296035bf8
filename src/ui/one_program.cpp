#include "ui/one_program.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>

#include "ui/text.h"

namespace kickwell {
namespace {

constexpr const char* ActivationToken = "XDG_ACTIVATION_TOKEN";  ///< The right to come to the front.

QString SocketName(const QString& folder) {
  const QByteArray place = (QDir::homePath() + '\n' + QFileInfo(folder).canonicalFilePath()).toUtf8();
  return "kickwell-" + QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex().left(16);
}

/// Asks the program behind the socket to come to the front. It may still be starting; without an answer it is
/// taken for dead.
bool Call(const QString& name) {
  constexpr int Tries = 10, Pause = 100, Patience = 2000;  // In milliseconds.
  for (int i = 0; i < Tries; ++i) {
    QLocalSocket socket;
    socket.connectToServer(name);
    if (socket.waitForConnected(Patience)) {
      socket.write(qgetenv(ActivationToken) + '\n');
      return socket.waitForBytesWritten(Patience) &&
             (socket.waitForDisconnected(Patience) || socket.state() == QLocalSocket::UnconnectedState);
    }
    QThread::msleep(Pause);
  }
  return false;
}

}  // namespace

OneProgram::OneProgram(const ProgramFolder& folder)
    : name_(SocketName(ToQt(folder.Root.string()))), lock_(ToQt((folder.Root / "running.lock").string())) {
  lock_.setStaleLockTime(0);  // Only the end of the program that locked makes the lock invalid.
  const bool locked = lock_.tryLock(0);
  mayRun_ = locked || lock_.error() != QLockFile::LockFailedError || !Call(name_);
  if (locked) Listen();
}

void OneProgram::Listen() {
  QLocalServer::removeServer(name_);  // What a crash has left.
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
    QLocalSocket* const caller = server_.nextPendingConnection();
    QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    QObject::connect(caller, &QLocalSocket::readyRead, caller, [this, caller] {
      if (!caller->canReadLine()) return;
      const QByteArray token = caller->readLine().trimmed();
      if (!token.isEmpty()) qputenv(ActivationToken, token);
      caller->disconnectFromServer();
      Wanted();
    });
  });
  server_.listen(name_);
}

}  // namespace kickwell
