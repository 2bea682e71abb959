#pragma once

#include <QList>
#include <QObject>
#include <QTcpServer>
#include <QUrl>
#include <functional>
#include <optional>

#include "adal/ADAddress.h"
#include "adal/ADError.h"

class QTcpSocket;

// Receives one sign-in's redirect from the browser, on the loopback address only. An invalid request gets an
// error page and changes nothing; the first answer that the receiver accepts closes the port.
class ADLoopbackListener final : public QObject {
 public:
  enum class Verdict { Taken, NotOurs };
  using Receiver = std::function<Verdict(const ADParameters& answer)>;

  explicit ADLoopbackListener(Receiver receiver);
  ~ADLoopbackListener() override;

  // At the port in the address, or a free one.
  [[nodiscard]] std::optional<ADError> listen(const QUrl& redirectUri);

  // Accepts no further answer.
  void close() { m_server.close(); }

  // The address with its port, once it listens.
  QUrl redirectUri() const { return m_redirectUri; }

 private:
  void accept();
  void read(QTcpSocket* socket);
  void answerRequest(QTcpSocket* socket, const QByteArray& requestLine);

  Receiver m_receiver;
  QTcpServer m_server;
  QUrl m_redirectUri;
  QList<QTcpSocket*> m_sockets;  // open, oldest first; children of the server
};
