#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMutex>
#include <QString>
#include <QThread>
#include <QUrlQuery>
#include <chrono>
#include <functional>
#include <memory>

#include "sandbox/HttpServer.h"

// A sign-in provider on a loopback port and a thread of its own, so that it answers while the main thread is
// blocked. A refresh token can be redeemed once; the second time, all tokens of its family are revoked. An
// access token reads "access-of-USER-NUMBER".
class TokenProvider final {
 public:
  // Changes an answer and the claims of its id_token. Called on the provider's thread.
  using Edit = std::function<void(QJsonObject& answer, QJsonObject& claims)>;

  TokenProvider();
  ~TokenProvider();
  Q_DISABLE_COPY_MOVE(TokenProvider)

  QString authority() const;

  // The first refresh token of a new family.
  QString grant(const QString& user, const QString& clientId = QStringLiteral("client-1"));

  // The time from a redemption to its answer: of the next requests one each, then of all others. Requests in
  // progress with different delays are answered out of order.
  void setDelay(std::chrono::milliseconds delay);
  void setNextDelays(const QList<std::chrono::milliseconds>& delays);
  // The next requests are refused with this status and error.
  void refuseNext(int times, int status, const QString& error);
  // Whether requests that name scopes are refused.
  void setRefusesScopes(bool refuses);
  void setLifetime(int seconds);
  void setEdit(const Edit& edit);

  // Ends as a program that crashes: connections break, and the port is closed. What was granted is kept.
  void stop();
  // Starts again at the same port.
  void start();

  QList<QUrlQuery> requests() const;           // of tokens, oldest first
  int redemptions(const QString& user) const;  // that succeeded
  int reuses() const;                          // each revoked a family

 private:
  struct Family {
    QString user;
    QString clientId;
    QString current;  // the only token that is good; empty when revoked
  };

  sandbox::HttpResponse configuration() const;
  sandbox::HttpResponse token(const sandbox::HttpRequest& request);
  sandbox::HttpResponse redeem(const QUrlQuery& form);
  sandbox::HttpResponse granted(Family& family);
  QString nextToken(int family);
  template <typename T>
  void set(T& target, const T& value);

  QThread m_thread;
  QObject m_worker;
  std::unique_ptr<sandbox::HttpServer> m_server;  // used on the thread
  quint16 m_port = 0;

  mutable QMutex m_mutex;  // protects all below
  QList<Family> m_families;
  QHash<QString, int> m_familyOf;  // of every refresh token that was ever given
  QHash<QString, int> m_redemptions;
  QList<QUrlQuery> m_requests;
  std::chrono::milliseconds m_delay{0};
  QList<std::chrono::milliseconds> m_nextDelays;
  int m_refusals = 0;
  int m_refusalStatus = 0;
  QString m_refusal;
  bool m_refusesScopes = false;
  int m_lifetime = 3600;
  int m_number = 0;
  int m_reuses = 0;
  Edit m_edit;
};
