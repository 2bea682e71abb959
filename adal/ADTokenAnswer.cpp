#include "adal/ADTokenAnswer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>

#include "adal/ADLogger.h"
#include "adal/ADTokenCache.h"
#include "adal/ADWebClient.h"

namespace {

constexpr double longestLifetime = 10.0 * 365 * 24 * 3600;

ADTokenAnswerOrError tokenFailure(ADErrorCode code, const QString& details) {
  return {{}, ADError{code, details}};
}

// Only error names from the standards are copied: the authority could send any text, a secret included.
ADTokenAnswerOrError refusal(int status, const QString& name) {
  if (status >= 500 || status == 429)
    return tokenFailure(ADErrorCode::Unavailable, QStringLiteral("status %1").arg(status));
  if (name == QLatin1String("temporarily_unavailable")) return tokenFailure(ADErrorCode::Unavailable, name);
  if (name == QLatin1String("invalid_grant")) return tokenFailure(ADErrorCode::InvalidGrant, {});
  if (name == QLatin1String("invalid_scope")) return tokenFailure(ADErrorCode::InvalidScope, {});
  static constexpr std::array known{"invalid_request",        "invalid_client",   "unauthorized_client",
                                    "unsupported_grant_type", "invalid_target",   "interaction_required",
                                    "login_required",         "consent_required", "access_denied"};
  const bool isKnown =
      std::any_of(known.begin(), known.end(), [&](const char* text) { return name == QLatin1String(text); });
  if (isKnown) return tokenFailure(ADErrorCode::Refused, name);
  return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("status %1").arg(status));
}

// A token is sent in a header line, which may contain visible characters only.
bool isTokenText(const QString& text) {
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c > u' ' && c < u'\x7f'; });
}

// Some authorities write numbers as texts.
std::optional<double> numberUnder(const QJsonObject& object, const char* key) {
  const QJsonValue value = object.value(QLatin1String(key));
  if (value.isDouble()) return value.toDouble();
  bool isNumber = false;
  const double number = value.toString().toDouble(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

QDateTime expiryOf(const QJsonObject& grant, const QDateTime& now) {
  std::optional<double> seconds = numberUnder(grant, "expires_in");
  if (!seconds) {
    const std::optional<double> instant = numberUnder(grant, "expires_on");
    if (instant) seconds = *instant - static_cast<double>(now.toSecsSinceEpoch());
  }
  if (!seconds || !(*seconds > 0) || *seconds > longestLifetime) return {};
  return now.addSecs(static_cast<qint64>(*seconds));
}

bool isForClient(const QJsonValue& audience, const QString& clientId) {
  if (audience.isUndefined()) return true;
  return audience.isArray() ? audience.toArray().contains(clientId) : audience.toString() == clientId;
}

// Null when the text is not an id_token for this client, or names no user.
QString userOfIdToken(const QString& idToken, const QString& clientId) {
  const QList<QByteArray> parts = idToken.toUtf8().split('.');
  if (parts.size() != 3) return {};
  const auto payload = QByteArray::fromBase64Encoding(
      parts.at(1), QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
  if (!payload) return {};
  const QJsonObject claims = QJsonDocument::fromJson(*payload).object();
  if (!isForClient(claims.value(QLatin1String("aud")), clientId)) return {};
  for (const char* claim : {"upn", "preferred_username", "unique_name", "email", "sub"}) {
    const QString user = claims.value(QLatin1String(claim)).toString();
    if (!user.isEmpty()) return user;
  }
  return {};
}

}  // namespace

ADTokenAnswerOrError tokenAnswer(const ADWebAnswer& answer, const ADTokenExpectation& expected,
                                 const QDateTime& now) {
  if (answer.error) return {{}, answer.error};
  const QJsonDocument document = QJsonDocument::fromJson(answer.body);
  const QJsonObject grant = document.object();
  if (answer.status != 200) return refusal(answer.status, grant.value(QLatin1String("error")).toString());
  if (!document.isObject()) return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("not JSON"));

  ADTokenAnswer granted;
  granted.accessToken = grant.value(QLatin1String("access_token")).toString();
  if (!isTokenText(granted.accessToken))
    return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("no token"));
  const QString type = grant.value(QLatin1String("token_type")).toString();
  if (!type.isEmpty() && type.compare(QLatin1String("bearer"), Qt::CaseInsensitive) != 0) {
    return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("not a bearer token"));
  }
  granted.expiresOn = expiryOf(grant, now);
  if (!granted.expiresOn.isValid())
    return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("no expiry"));
  granted.refreshToken = grant.value(QLatin1String("refresh_token")).toString();
  if (grant.contains(QLatin1String("id_token"))) {
    granted.userId = userOfIdToken(grant.value(QLatin1String("id_token")).toString(), expected.clientId);
    if (granted.userId.isEmpty()) return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("no user"));
  }
  return {granted, {}};
}

QList<ADTokenCacheItem> itemsForAnswer(const ADTokenAnswer& answer, const ADTokenTarget& target) {
  ADTokenCacheItem access;
  access.userInformation.userId = target.userId;
  access.authority = target.authority;
  access.clientId = target.clientId;

  QList<ADTokenCacheItem> items;
  if (!answer.refreshToken.isEmpty()) {
    ADTokenCacheItem refresh = access;
    refresh.multiResource = true;
    refresh.refreshToken = answer.refreshToken;
    items.append(refresh);
  }
  access.resource = target.resource;
  access.accessToken = answer.accessToken;
  access.expiresOn = answer.expiresOn;
  items.append(access);
  return items;
}

void storeItems(const QList<ADTokenCacheItem>& items) {
  const ADTokenCache::Failure failure = ADTokenCache::defaultCache().addOrUpdateItems(items);
  if (failure) ADLogger::log(ADLogLevel::Error, QStringLiteral("tokens not stored: %1").arg(failure->text()));
}
