#pragma once

#include <QList>
#include <QSslCertificate>
#include <QString>
#include <QUrl>
#include <chrono>
#include <functional>
#include <optional>

struct NetworkEndpoint {
  QString address;
  quint16 port = 0;
  QList<QSslCertificate> certificates = {};  // who vouches for it; empty for those of the system
};

// Where a host is to be reached in place of where its name points; nothing for the ordinary way.
using EndpointFinder = std::function<std::optional<NetworkEndpoint>(const QUrl&)>;

struct NetworkLimits {
  std::chrono::milliseconds request{10'000};  // one request, from its start to its last byte
  qint64 answerBytes = 1024 * 1024;
};

struct NetworkConfiguration {
  NetworkLimits limits;
  EndpointFinder endpoint;
};

// Who may be asked at all.
enum class NetworkReach { Sandbox, Network };

// Whether the host is the domain or lies below it.
bool isWithinDomain(const QString& host, const QString& domain);
