#include "companion/runtime/SingleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>

namespace {

using namespace std::chrono_literals;

constexpr auto kLongestQuestion = 2s;
const QByteArray kQuestion = QByteArrayLiteral("show\n");
const QByteArray kAnswer = QByteArrayLiteral("shown\n");

// In a directory that only this user can write to. Empty when there is none.
QString socketPath(const QString& folder) {
  const QString place = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (place.isEmpty()) return {};
  // Canonical, so that a link to the folder leads to the same socket.
  const QString canonical = QFileInfo(folder).canonicalFilePath();
  const QByteArray path =
      QFile::encodeName(canonical.isEmpty() ? QFileInfo(folder).absoluteFilePath() : canonical);
  const QByteArray name = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(24);
  return QDir(place).filePath("brenn-mivra-" + QLatin1String(name));
}

}  // namespace

SingleInstance::SingleInstance(const QString& stateFolder) : m_folder(stateFolder) {
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

bool SingleInstance::askFirst(std::chrono::milliseconds patience) const {
  const QString path = socketPath(m_folder);
  if (path.isEmpty()) return false;
  const QDeadlineTimer deadline(patience);
  QLocalSocket socket;
  socket.connectToServer(path);
  if (!socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) return false;
  socket.write(kQuestion);
  while (socket.bytesAvailable() < kAnswer.size()) {
    if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) return false;
  }
  return socket.read(kAnswer.size()) == kAnswer;
}

void SingleInstance::listen() {
  const QString path = socketPath(m_folder);
  if (path.isEmpty()) return;
  // A companion that was killed leaves its socket file behind.
  QLocalServer::removeServer(path);
  m_server.listen(path);
}

void SingleInstance::receive() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    socket->setReadBufferSize(kQuestion.size());
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] { answer(socket); });
    QTimer::singleShot(kLongestQuestion, socket, [socket] { socket->abort(); });
  }
}

void SingleInstance::answer(QLocalSocket* socket) {
  if (socket->bytesAvailable() < kQuestion.size()) return;
  socket->disconnect(this);
  if (socket->read(kQuestion.size()) != kQuestion) return socket->abort();
  socket->write(kAnswer);
  socket->disconnectFromServer();
  Q_EMIT asked();
}
