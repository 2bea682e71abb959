#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <functional>
#include <optional>
#include <utility>

#include "adal/ADALExport.h"

class QNetworkProxy;
class QSslSocket;

using ADHttpHeaders = QList<std::pair<QByteArray, QByteArray>>;

// Where to connect in place of where an address points; without a proxy.
struct ADHttpPeer {
  QString address;
  quint16 port = 0;
  QList<QSslCertificate> certificates = {};  // the authorities to trust; empty for those of the system
};

struct ADHttpRequest {
  QUrl address;          // https, or http, which the caller has to allow
  QByteArray body = {};  // empty: the address is read (GET), else the body is sent (POST)
  ADHttpHeaders headers = {};
  std::chrono::milliseconds time{10'000};  // from its start to the response's last byte
  qint64 responseBytes = 1024 * 1024;
  std::optional<ADHttpPeer> peer = {};
};

enum class ADHttpFailure {
  None,
  HostUnknown,
  Unreachable,  // refused, or broken before the end of the response
  TooSlow,
  Malformed,
  TooLong,
  Encryption,  // nothing that both sides accept
  CertificateOfOtherName,
  CertificateUntrusted,
  CertificateExpired,
  CertificateNotYetValid,
};

struct ADAL_EXPORT ADHttpResponse {
  ADHttpFailure failure = ADHttpFailure::None;
  int status = 0;  // 0 with a failure
  ADHttpHeaders headers = {};
  QByteArray body = {};

  // The values of all headers of that name, joined by commas.
  QByteArray header(const char* name) const;
};

// One HTTP request and its response, on a connection of its own, which ends with it. What
// QNetworkAccessManager does unasked must not happen here: it answers an offer of Negotiate with Kerberos,
// which asks name servers and holds up whoever deletes the manager meanwhile. No challenge is answered, no
// redirect followed, no request repeated, no cookie kept. Deleting the exchange ends it without a response.
// Main thread only.
class ADAL_EXPORT ADHttpExchange final : public QObject {
 public:
  using Done = std::function<void(const ADHttpResponse&)>;

  // `done` is called later, once, and may delete the exchange.
  ADHttpExchange(const ADHttpRequest& request, Done done);
  ~ADHttpExchange() override;

 private:
  enum class Part { Status, Headers, Counted, ToTheEnd, ChunkSize, Chunk, ChunkEnd, Trailers };

  void start();
  void connectToNext();
  QSslSocket* createSocket();
  void connectThroughProxy(const QNetworkProxy& proxy);
  void onConnected(QSslSocket* socket);
  void release(QSslSocket* socket);
  void onAttemptFailed(QSslSocket* socket);
  void onSocketError(int error);
  void onClosed();
  void send();
  void read();
  bool readPart();
  bool readLine();
  void readStatus(const QByteArray& line);
  void readHeader(const QByteArray& line);
  void startBody();
  void readChunkSize(const QByteArray& line);
  bool readBody(qint64 most);
  void fail(ADHttpFailure failure);
  void finish(const ADHttpResponse& response);

  const ADHttpRequest m_request;
  Done m_done;
  QTimer m_deadline;
  QTimer m_stagger;
  QList<QHostAddress> m_waiting;   // addresses that are not tried yet
  QList<QSslSocket*> m_attempts;   // sockets that are not connected yet
  QSslSocket* m_socket = nullptr;  // the connected one
  ADHttpFailure m_certificateFailure = ADHttpFailure::None;
  Part m_part = Part::Status;
  qint64 m_headerBytes = 0;
  qint64 m_left = 0;  // of the body, or of its current chunk
  ADHttpResponse m_response;
};
