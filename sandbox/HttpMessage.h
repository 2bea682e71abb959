#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrlQuery>
#include <chrono>
#include <optional>
#include <utility>

class QTcpSocket;

namespace sandbox {

struct HttpRequest {
  QByteArray method;
  QString path;
  QUrlQuery query;
  QHash<QByteArray, QByteArray> headers;  // names in lower case
  QByteArray body;
  bool isEncrypted = false;

  // Nothing while the request is not complete.
  static std::optional<HttpRequest> parse(const QByteArray& data);

  // The name in the Host header, without a port.
  QString host() const;
  QUrlQuery form() const;
};

struct HttpResponse {
  // How the response is sent: correctly, or as a bad server or network would send it. A flood sends a hundred
  // megabytes.
  enum class Delivery { Whole, Silent, HangUp, Drip, CutOff, Flood };

  int status = 200;
  QByteArray contentType = "application/json";
  QByteArray body = {};
  QList<std::pair<QByteArray, QByteArray>> headers = {};
  Delivery delivery = Delivery::Whole;
  std::chrono::milliseconds delay{0};
};

// Sends the response after its delay. A delivery that takes time ends with the socket.
void deliver(QTcpSocket* socket, const HttpResponse& response);

}  // namespace sandbox
