#include "adal/ADTokenAnswer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <cmath>

#include "adal/ADLogger.h"
#include "adal/ADTokenCache.h"
#include "adal/ADWebClient.h"

namespace {

constexpr double longestLifetime = 10.0 * 365 * 24 * 3600;
constexpr double usualLifetime = 3600;  // when an authority does not say
constexpr double clockTolerance = 300;  // seconds between an authority's own servers

// The claims that name a user, the one to prefer first. The subject identifies but need not be a name.
constexpr std::array userClaims{"upn", "preferred_username", "unique_name", "email", "sub"};

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
  return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool isMissing(const QJsonObject& object, const char* key) {
  const QJsonValue value = object.value(QLatin1String(key));
  return value.isUndefined() || value.isNull();
}

// `serverTime` is the authority's, `now` ours, which may be hours apart.
QDateTime expiryOf(const QJsonObject& grant, const QDateTime& serverTime, const QDateTime& now) {
  std::optional<double> seconds = usualLifetime;
  if (!isMissing(grant, "expires_in")) {
    seconds = numberUnder(grant, "expires_in");
  } else if (!isMissing(grant, "expires_on")) {
    seconds = numberUnder(grant, "expires_on");
    if (seconds)
      *seconds -= static_cast<double>((serverTime.isValid() ? serverTime : now).toSecsSinceEpoch());
  }
  if (!seconds || !(*seconds > 0) || *seconds > longestLifetime) return {};
  return now.addSecs(static_cast<qint64>(*seconds));
}

// Nothing when the text is not an id_token.
QJsonObject claimsOf(const QString& idToken) {
  const QList<QByteArray> parts = idToken.toUtf8().split('.');
  if (parts.size() != 3) return {};
  const auto payload = QByteArray::fromBase64Encoding(
      parts.at(1), QByteArray::Base64UrlEncoding | QByteArray::AbortOnBase64DecodingErrors);
  return payload ? QJsonDocument::fromJson(*payload).object() : QJsonObject();
}

QString userOf(const QJsonObject& claims) {
  for (const char* claim : userClaims) {
    const QString user = claims.value(QLatin1String(claim)).toString();
    if (!user.isEmpty()) return user;
  }
  return {};
}

bool isForClient(const QJsonObject& claims, const QString& clientId) {
  const QJsonValue audience = claims.value(QLatin1String("aud"));
  const QJsonArray audiences = audience.isArray() ? audience.toArray() : QJsonArray{audience};
  if (!audiences.contains(clientId)) return false;
  const QJsonValue party = claims.value(QLatin1String("azp"));
  return party.isUndefined() ? audiences.size() == 1 : party.toString() == clientId;
}

// A subject alone cannot be compared, because the user may have been stored under another claim.
bool mayBeOfUser(const QJsonObject& claims, const QString& userId) {
  bool isNamed = false;
  for (const char* claim : userClaims) {
    const QString user = claims.value(QLatin1String(claim)).toString();
    if (user.compare(userId, Qt::CaseInsensitive) == 0) return true;
    if (!user.isEmpty() && claim != userClaims.back()) isNamed = true;
  }
  return !isNamed;
}

// Why the claims of an id_token cannot be accepted; null when they can.
const char* problemOf(const QJsonObject& claims, const ADTokenExpectation& expected,
                      const QDateTime& serverTime) {
  if (userOf(claims).isEmpty()) return "no user";
  if (!isForClient(claims, expected.clientId)) return "for another client";
  if (!expected.issuer.isEmpty() && claims.value(QLatin1String("iss")).toString() != expected.issuer)
    return "from another issuer";
  const std::optional<double> expiry = numberUnder(claims, "exp");
  if (!expiry) return "no expiry of the id_token";
  if (serverTime.isValid() && *expiry + clockTolerance < static_cast<double>(serverTime.toSecsSinceEpoch()))
    return "an expired id_token";
  if (!expected.userId.isEmpty() && !mayBeOfUser(claims, expected.userId)) return "for another user";
  return nullptr;
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
  if (type.compare(QLatin1String("bearer"), Qt::CaseInsensitive) != 0) {
    return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("not a bearer token"));
  }
  granted.expiresOn = expiryOf(grant, answer.date, now);
  if (!granted.expiresOn.isValid())
    return tokenFailure(ADErrorCode::ServerAnswer, QStringLiteral("no usable lifetime"));
  granted.refreshToken = grant.value(QLatin1String("refresh_token")).toString();
  if (grant.contains(QLatin1String("id_token"))) {
    const QJsonObject claims = claimsOf(grant.value(QLatin1String("id_token")).toString());
    const char* const problem = problemOf(claims, expected, answer.date);
    if (problem != nullptr) return tokenFailure(ADErrorCode::ServerAnswer, QLatin1String(problem));
    granted.userId = userOf(claims);
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

void storeSignedIn(const QList<ADTokenCacheItem>& items) {
  const ADTokenCache::Failure failure = ADTokenCache::defaultCache().addSignedInItems(items);
  if (failure) ADLogger::log(ADLogLevel::Error, QStringLiteral("tokens not stored: %1").arg(failure->text()));
}
