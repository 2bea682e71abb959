#include "sandbox/Authority.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include "sandbox/Responses.h"

namespace sandbox {

namespace {

constexpr QByteArray::Base64Options urlSafeBase64 =
    QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;
constexpr std::chrono::seconds lateTime{2};

QString valueOf(const QUrlQuery& query, const char* name) {
  return query.queryItemValue(QLatin1String(name), QUrl::FullyDecoded);
}

QString newSecret(const char* kind) {
  return QLatin1String(kind) + QUuid::createUuid().toString(QUuid::Id128) +
         QUuid::createUuid().toString(QUuid::Id128);
}

HttpResponse refused(const char* error) {
  return jsonResponse({{"error", QLatin1String(error)}}, 400);
}

HttpResponse html(const QString& content, int status = 200) {
  return pageResponse(QStringLiteral("Sandbox"), content, status);
}

bool provesKey(const QString& verifier, const QString& challenge) {
  const QByteArray hash = QCryptographicHash::hash(verifier.toLatin1(), QCryptographicHash::Sha256);
  return verifier.size() >= 43 && QString::fromLatin1(hash.toBase64(urlSafeBase64)) == challenge;
}

}  // namespace

Authority::Authority(HttpServer& server, const QString& path) : m_server(server), m_path(path) {
  m_server.handle(m_path + "/.well-known/openid-configuration",
                  [this](const HttpRequest& /*request*/) { return configuration(); });
  m_server.handle(m_path + "/oauth2/authorize", [this](const HttpRequest& request) { return page(request); });
  m_server.handle(m_path + "/oauth2/token", [this](const HttpRequest& request) { return token(request); });
}

QString Authority::address() const {
  return m_server.url().toString() + m_path;
}

void Authority::setFault(Fault fault, const QUrl& elsewhere) {
  m_fault = fault;
  m_elsewhere = elsewhere;
}

QString Authority::grantRefreshToken(const QString& clientId) {
  const QString refreshToken = newSecret("refresh-");
  m_refreshTokens.insert(refreshToken, {clientId, {}, {}});
  return refreshToken;
}

HttpResponse Authority::configuration() const {
  if (!m_hasConfiguration) return html("<p>nothing here</p>", 404);
  QJsonArray scopes{"openid"};
  if (m_generation == Generation::Scope) scopes.append("offline_access");
  return jsonResponse({{"issuer", address()},
                       {"authorization_endpoint", address() + "/oauth2/authorize"},
                       {"token_endpoint", address() + "/oauth2/token"},
                       {"scopes_supported", scopes},
                       {"authorization_response_iss_parameter_supported", true},
                       {"code_challenge_methods_supported", QJsonArray{"S256"}}});
}

HttpResponse Authority::page(const HttpRequest& request) {
  if (request.method == "POST") {
    const QUrlQuery form = request.form();
    return answerPage(form, valueOf(form, "answer") == "yes");
  }
  m_pageRequests.append(request.query);
  if (valueOf(request.query, "response_type") != "code" ||
      valueOf(request.query, "code_challenge_method") != "S256" ||
      valueOf(request.query, "client_id").isEmpty()) {
    return html("<p>This request cannot be served.</p>", 400);
  }
  if (m_consent == Consent::AskUser) return consentPage(request.query);
  return answerPage(request.query, m_consent == Consent::Give);
}

HttpResponse Authority::consentPage(const QUrlQuery& query) const {
  QString fields;
  for (const auto& [name, value] : query.queryItems(QUrl::FullyDecoded)) {
    fields += QStringLiteral("<input type=\"hidden\" name=\"%1\" value=\"%2\">")
                  .arg(name.toHtmlEscaped(), value.toHtmlEscaped());
  }
  const QString email = valueOf(query, "login_hint").toHtmlEscaped();
  return html("<h1>Sandbox sign-in</h1><form method=\"post\">" + fields +
              "<p><label>Email <input name=\"user\" value=\"" + email +
              "\"></label></p><p><button name=\"answer\" value=\"yes\">Sign in</button> "
              "<button name=\"answer\" value=\"no\">Refuse</button></p></form>");
}

HttpResponse Authority::answerPage(const QUrlQuery& query, bool isGiven) {
  if (!valueOf(query, "user").isEmpty()) m_userClaims = {{"upn", valueOf(query, "user")}};
  QUrlQuery answer;
  const QString code = newSecret("code-");
  if (isGiven) {
    const QString redirectUri = valueOf(query, "redirect_uri");
    m_codes.insert(code, {valueOf(query, "client_id"), redirectUri, valueOf(query, "code_challenge")});
    answer.addQueryItem("code", code);
  } else {
    answer.addQueryItem("error", "access_denied");
  }
  QUrl redirect(valueOf(query, "redirect_uri"));
  if (!redirect.scheme().startsWith("http")) {
    return html(isGiven ? "<p>Your code is</p><pre>" + code + "</pre>"
                        : QStringLiteral("<p>You refused.</p>"));
  }
  answer.addQueryItem("state", valueOf(query, "state"));
  answer.addQueryItem("iss", address());
  redirect.setQuery(answer);
  return redirectTo(QString::fromLatin1(redirect.toEncoded()));
}

HttpResponse Authority::token(const HttpRequest& request) {
  const QUrlQuery form = request.form();
  m_tokenRequests.append(form);
  using Delivery = HttpResponse::Delivery;
  switch (m_fault) {
    case Fault::Silent:
      return delivered({}, Delivery::Silent);
    case Fault::Slow:
      return delivered(jsonResponse({{"access_token", "never-complete"}}), Delivery::Drip);
    case Fault::CutOff:
      return delivered(jsonResponse({{"access_token", "cut-off"}}), Delivery::CutOff);
    case Fault::Flood:
      return delivered({}, Delivery::Flood);
    case Fault::ServerError:
      return jsonResponse({{"error", "server_error"}, {"error_description", valueOf(form, "refresh_token")}},
                          500);
    case Fault::Html:
      return html("<p>Out to lunch</p>");
    case Fault::RedirectElsewhere:
      return redirectTo(QString::fromLatin1(m_elsewhere.toEncoded()), 307);
    case Fault::InvalidGrant:
      return refused("invalid_grant");
    default:
      break;
  }
  HttpResponse response = redeem(form);
  if (m_fault == Fault::Late) response.delay = lateTime;
  return response;
}

HttpResponse Authority::redeem(const QUrlQuery& form) {
  const QString type = valueOf(form, "grant_type");
  if (type == "authorization_code") return redeemCode(form);
  if (type == "refresh_token" && m_fault == Fault::RefusedRefresh) return refused("invalid_grant");
  if (type == "refresh_token") return redeemRefreshToken(form);
  return refused("unsupported_grant_type");
}

HttpResponse Authority::redeemCode(const QUrlQuery& form) {
  const Grant grant = m_codes.take(valueOf(form, "code"));
  const bool isValid = !grant.clientId.isEmpty() && grant.clientId == valueOf(form, "client_id") &&
                       grant.redirectUri == valueOf(form, "redirect_uri") &&
                       provesKey(valueOf(form, "code_verifier"), grant.challenge);
  return isValid ? granted(grant.clientId) : refused("invalid_grant");
}

HttpResponse Authority::redeemRefreshToken(const QUrlQuery& form) {
  const Grant grant = m_refreshTokens.take(valueOf(form, "refresh_token"));
  const bool isValid = !grant.clientId.isEmpty() && grant.clientId == valueOf(form, "client_id");
  return isValid ? granted(grant.clientId) : refused("invalid_grant");
}

HttpResponse Authority::granted(const QString& clientId) {
  const QString accessToken = newSecret("access-");
  m_accessTokens.insert(accessToken);
  QJsonObject answer{
      {"token_type", "Bearer"},
      {"access_token", accessToken},
      {"refresh_token", grantRefreshToken(clientId)},
      {"expires_in", m_lifetime},
      {"id_token", idToken(m_fault == Fault::OtherAudience ? QStringLiteral("another") : clientId)}};
  // The older generation sends numbers as texts.
  if (m_generation == Generation::Resource) answer.insert("expires_in", QString::number(m_lifetime));
  if (m_fault == Fault::NoExpiry) answer.remove("expires_in");
  if (m_fault == Fault::NoAccessToken) answer.remove("access_token");
  return jsonResponse(answer);
}

QString Authority::idToken(const QString& clientId) const {
  QJsonObject claims = m_fault == Fault::NoUser ? QJsonObject() : m_userClaims;
  claims.insert("iss", address());
  claims.insert("aud", clientId);
  claims.insert("exp", QDateTime::currentSecsSinceEpoch() + m_lifetime);
  const auto part = [](const QJsonObject& object) {
    return QString::fromLatin1(QJsonDocument(object).toJson(QJsonDocument::Compact).toBase64(urlSafeBase64));
  };
  return part({{"alg", "none"}}) + "." + part(claims) + ".";
}

}  // namespace sandbox
