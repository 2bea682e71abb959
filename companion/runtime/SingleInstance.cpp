#include "companion/runtime/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <cerrno>

namespace {

using namespace std::chrono_literals;

constexpr auto kBetweenAttempts = 20ms;
constexpr auto kLongestQuestion = 2s;
constexpr int kMostQuestions = 8;
const QByteArray kQuestion = QByteArrayLiteral("show\n");
const QByteArray kAnswer = QByteArrayLiteral("shown\n");

// Canonical, so that two ways to write one folder meet.
QString preparedFolder(const QString& folder) {
  if (!QFileInfo::exists(folder)) {
    QDir().mkpath(QFileInfo(folder).absolutePath());
    QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  const QString canonical = QFileInfo(folder).canonicalFilePath();
  return canonical.isEmpty() ? QFileInfo(folder).absoluteFilePath() : canonical;
}

// In a folder that is the user's alone: nobody else can sit there and answer.
QString socketPathFor(const QString& folder) {
  const QString place = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (place.isEmpty()) return {};
  const QByteArray name = QCryptographicHash::hash(QFile::encodeName(folder), QCryptographicHash::Sha256);
  return QDir(place).filePath(QStringLiteral("brenn-mivra-%1").arg(QLatin1String(name.toHex().left(24))));
}

}  // namespace

SingleInstance::SingleInstance(const QString& stateFolder)
    : m_folder(preparedFolder(stateFolder)), m_socketPath(socketPathFor(m_folder)) {
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  m_server.setMaxPendingConnections(kMostQuestions);
  connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::receive);
}

SingleInstance::~SingleInstance() {
  m_server.close();
  if (m_lock >= 0) ::close(m_lock);
}

SingleInstance::Claim SingleInstance::claim(std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  do {
    // The socket first: it also finds one whose folder was removed and made again, or cannot be locked.
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline.remainingTimeAsDuration());
    if (askFirst(left)) return Claim::Asked;
    if (lockFolder() != Lock::Held) {
      listen();
      return Claim::First;
    }
    // It is only starting, or about to end.
    QThread::msleep(kBetweenAttempts.count());
  } while (!deadline.hasExpired());
  return Claim::NoAnswer;
}

// The folder itself: that needs no room on the disk, leaves nothing behind, and ends with the process.
SingleInstance::Lock SingleInstance::lockFolder() {
  m_lock = ::open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (m_lock < 0) return Lock::Impossible;
  if (::flock(m_lock, LOCK_EX | LOCK_NB) == 0) return Lock::Taken;
  const bool isHeld = errno == EWOULDBLOCK;
  ::close(m_lock);
  m_lock = -1;
  return isHeld ? Lock::Held : Lock::Impossible;
}

bool SingleInstance::askFirst(std::chrono::milliseconds patience) const {
  if (m_socketPath.isEmpty()) return false;
  const QDeadlineTimer deadline(patience);
  QLocalSocket socket;
  socket.connectToServer(m_socketPath);
  if (!socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) return false;
  socket.write(kQuestion);
  while (!socket.canReadLine() && socket.bytesAvailable() <= kAnswer.size()) {
    if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) return false;
  }
  return socket.read(kAnswer.size()) == kAnswer;
}

void SingleInstance::listen() {
  if (m_socketPath.isEmpty()) return;
  // Left by one that was killed: whoever could still listen there would have answered or held the lock.
  QLocalServer::removeServer(m_socketPath);
  // Without a socket it only cannot be asked; a second one still finds the lock.
  (void)m_server.listen(m_socketPath);
}

void SingleInstance::receive() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    socket->setReadBufferSize(kQuestion.size() + 1);
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
    QTimer::singleShot(kLongestQuestion, socket, [socket] { socket->abort(); });
  }
}

void SingleInstance::read(QLocalSocket* socket) {
  if (!socket->canReadLine() && socket->bytesAvailable() < kQuestion.size()) return;
  const bool isQuestion = socket->read(kQuestion.size()) == kQuestion;
  socket->disconnect(this);
  if (!isQuestion) return socket->abort();
  socket->write(kAnswer);
  socket->disconnectFromServer();
  Q_EMIT asked();
}
