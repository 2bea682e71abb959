#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrlQuery>
#include <chrono>
#include <utility>

namespace sandbox {

struct HttpRequest {
  QByteArray method;
  QString path;
  QUrlQuery query;
  QHash<QByteArray, QByteArray> headers;  // names in small letters
  QByteArray body;

  // The name that was asked for, without a port.
  QString host() const;
  QUrlQuery form() const;
};

struct HttpResponse {
  // How the answer goes out: as it should, or as a bad server or network would send it.
  enum class Delivery { Whole, Silent, HangUp, Drip, Paced, CutOff, Flood };

  int status = 200;
  QByteArray contentType = "application/json";
  QByteArray body = {};
  QList<std::pair<QByteArray, QByteArray>> headers = {};
  Delivery delivery = Delivery::Whole;
  qint64 floodBytes = 0;              // how much a flood sends
  std::chrono::milliseconds pace{0};  // how long the body of a paced answer takes
  std::chrono::milliseconds delay{0};
};

}  // namespace sandbox
