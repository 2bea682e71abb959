#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QString>
#include <QUrl>
#include <QUrlQuery>

#include "sandbox/HttpServer.h"

namespace sandbox {

// A sign-in authority: the authorization code flow with proof keys, refresh tokens that can be used once, and
// faults on demand. Everything is in memory. For tests and trials only.
class Authority final {
 public:
  enum class Generation { Resource, Scope };
  // Faults of the token endpoint.
  enum class Fault {
    None,
    Late,
    Silent,
    Slow,
    CutOff,
    ServerError,
    Html,
    Flood,
    RedirectElsewhere,
    NoExpiry,
    NoUser,
    NoAccessToken,
    OtherAudience,
    InvalidGrant,
    RefusedRefresh,
  };
  enum class Consent { AskUser, Give, Refuse };

  // Answers below `path` of the server, which must outlive it.
  Authority(HttpServer& server, const QString& path);
  Q_DISABLE_COPY_MOVE(Authority)

  QString address() const;

  void setGeneration(Generation generation) { m_generation = generation; }
  void setHasConfiguration(bool has) { m_hasConfiguration = has; }
  void setConsent(Consent consent) { m_consent = consent; }
  // The claims about the user in an id_token.
  void setUserClaims(const QJsonObject& claims) { m_userClaims = claims; }
  void setLifetime(int seconds) { m_lifetime = seconds; }
  void setFault(Fault fault, const QUrl& elsewhere = QUrl());

  // A new refresh token, as after a sign-in.
  QString grantRefreshToken(const QString& clientId);

  bool isGranted(const QString& accessToken) const { return m_accessTokens.contains(accessToken); }

  // The requests, oldest first.
  const QList<QUrlQuery>& pageRequests() const { return m_pageRequests; }
  const QList<QUrlQuery>& tokenRequests() const { return m_tokenRequests; }

 private:
  struct Grant {
    QString clientId;
    QString redirectUri;
    QString challenge;
  };

  HttpResponse configuration() const;
  HttpResponse page(const HttpRequest& request);
  HttpResponse consentPage(const QUrlQuery& query) const;
  HttpResponse answerPage(const QUrlQuery& query, bool isGiven);
  HttpResponse token(const HttpRequest& request);
  HttpResponse redeem(const QUrlQuery& form);
  HttpResponse redeemCode(const QUrlQuery& form);
  HttpResponse redeemRefreshToken(const QUrlQuery& form);
  HttpResponse granted(const QString& clientId);
  QString idToken(const QString& clientId) const;

  HttpServer& m_server;
  QString m_path;
  Generation m_generation = Generation::Resource;
  bool m_hasConfiguration = true;
  Consent m_consent = Consent::Give;
  QJsonObject m_userClaims{{QStringLiteral("upn"), QStringLiteral("alice@example.com")}};
  int m_lifetime = 3600;
  Fault m_fault = Fault::None;
  QUrl m_elsewhere;
  QHash<QString, Grant> m_codes;
  QHash<QString, Grant> m_refreshTokens;
  QSet<QString> m_accessTokens;
  QList<QUrlQuery> m_pageRequests;
  QList<QUrlQuery> m_tokenRequests;
};

}  // namespace sandbox
