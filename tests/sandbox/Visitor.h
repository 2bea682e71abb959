#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QString>
#include <QUrl>
#include <chrono>

// Asks played hosts as a program would that takes them for real: by their names, and with the sandbox's
// certificates alone.
class Visitor final {
 public:
  struct Answer {
    QNetworkReply::NetworkError error = QNetworkReply::NoError;
    int status = 0;  // 0 where no answer came
    QByteArray contentType;
    QString location;
    QByteArray body;
    int pieces = 0;  // in which the body came
  };

  // Where the hosts are to be found: what a service of the sandbox says of itself.
  QJsonObject places;
  std::chrono::milliseconds patience{10'000};
  qint64 mostBytes = 8 * 1024 * 1024;  // more is not waited for

  Answer get(const QUrl& address);
  Answer post(const QUrl& address, const QByteArray& body, const QByteArray& authorization = {});

 private:
  QNetworkRequest requestFor(const QUrl& address) const;
  Answer read(QNetworkReply* reply);

  QNetworkAccessManager m_network;
};
