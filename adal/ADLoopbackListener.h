#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

#include "adal/ADAddress.h"
#include "adal/ADBrowserPage.h"
#include "adal/ADError.h"

class QHostAddress;
class QTcpServer;
class QTcpSocket;

// Receives one sign-in's redirect from the browser, on the loopback address only. Requests that are invalid
// or not expected change nothing. The browser that brings the answer is redirected to the same address
// without it, where it waits for the outcome.
class ADLoopbackListener final : public QObject {
  Q_OBJECT

 public:
  using Check = std::function<bool(const ADParameters& answer)>;

  // `isExpected` must be valid until end() or close().
  explicit ADLoopbackListener(Check isExpected);
  ~ADLoopbackListener() override;

  // At the port in the address, or a free one; at both loopback addresses for "localhost", since the browser
  // may use either.
  [[nodiscard]] std::optional<ADError> listen(const QUrl& redirectUri);

  // The address with its port, once it listens.
  QUrl redirectUri() const { return m_redirectUri; }

  // Shows the outcome to the browser that brought the answer, which may be loaded again for some seconds
  // unless another sign-in needs the port. Without an answer, closes the port at once. Deletes the listener.
  static void end(std::unique_ptr<ADLoopbackListener> listener, ADBrowserPage outcome);

  // Closes the port at once; a browser that waits sees the outcome. Deletes the listener.
  static void close(std::unique_ptr<ADLoopbackListener> listener, ADBrowserPage outcome);

 Q_SIGNALS:
  // The expected answer, once. The receiver may end the listener.
  void answered(const ADParameters& answer);

 private:
  static void closeEnded(quint16 port);
  bool listenAt(const QList<QHostAddress>& addresses, quint16 port);
  void accept(QTcpServer* server);
  void makeRoom();
  void read(QTcpSocket* socket);
  void answerRequest(QTcpSocket* socket, const QByteArray& head);
  void takeAnswer(QTcpSocket* socket, const ADParameters& answer);
  void showOutcome(QTcpSocket* socket);
  void setOutcome(ADBrowserPage outcome);
  void stopListening();

  Check m_isExpected;
  QList<QTcpServer*> m_servers;  // children
  QUrl m_redirectUri;
  QList<QTcpSocket*> m_sockets;  // open, oldest first; children of their server
  QList<QTcpSocket*> m_waiting;  // of these, the ones that wait for the outcome
  bool m_isAnswered = false;
  std::optional<ADBrowserPage> m_outcome;
  int m_refused = 0;  // unexpected answers
};
