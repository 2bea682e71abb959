#include "tests/kit/TokenProvider.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QLocale>
#include <QMutexLocker>

#include "sandbox/Responses.h"

namespace {

QString formValue(const QUrlQuery& form, const char* name) {
  return form.queryItemValue(QLatin1String(name), QUrl::FullyDecoded);
}

sandbox::HttpResponse refusedWith(const QString& error, int status = 400) {
  return sandbox::jsonResponse({{"error", error}}, status);
}

QString unsignedIdToken(const QJsonObject& claims) {
  const auto part = [](const QJsonObject& object) {
    return QString::fromLatin1(QJsonDocument(object)
                                   .toJson(QJsonDocument::Compact)
                                   .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
  };
  return part({{"alg", "none"}}) + "." + part(claims) + ".";
}

}  // namespace

TokenProvider::TokenProvider() {
  m_worker.moveToThread(&m_thread);
  m_thread.start();
  start();
}

TokenProvider::~TokenProvider() {
  stop();
  m_thread.quit();
  m_thread.wait();
}

void TokenProvider::start() {
  const auto listen = [this] {
    m_server = std::make_unique<sandbox::HttpServer>();
    m_server->handle("/common/.well-known/openid-configuration",
                     [this](const sandbox::HttpRequest&) { return configuration(); });
    m_server->handle("/common/token", [this](const sandbox::HttpRequest& request) { return token(request); });
    if (!m_server->listen(m_port)) qFatal("the token provider cannot listen");
    m_port = static_cast<quint16>(m_server->port());
  };
  QMetaObject::invokeMethod(&m_worker, listen, Qt::BlockingQueuedConnection);
}

void TokenProvider::stop() {
  QMetaObject::invokeMethod(
      &m_worker, [this] { m_server.reset(); }, Qt::BlockingQueuedConnection);
}

QString TokenProvider::authority() const {
  return QStringLiteral("http://127.0.0.1:%1/common").arg(m_port);
}

QString TokenProvider::grant(const QString& user, const QString& clientId) {
  const QMutexLocker lock(&m_mutex);
  m_families.append({user, clientId, {}});
  return nextToken(static_cast<int>(m_families.size()) - 1);
}

template <typename T>
void TokenProvider::set(T& target, const T& value) {
  const QMutexLocker lock(&m_mutex);
  target = value;
}

void TokenProvider::setDelay(std::chrono::milliseconds delay) {
  set(m_delay, delay);
}
void TokenProvider::setNextDelays(const QList<std::chrono::milliseconds>& delays) {
  set(m_nextDelays, delays);
}
void TokenProvider::setRefusesScopes(bool refuses) {
  set(m_refusesScopes, refuses);
}
void TokenProvider::setLifetime(int seconds) {
  set(m_lifetime, seconds);
}
void TokenProvider::setEdit(const Edit& edit) {
  set(m_edit, edit);
}

void TokenProvider::refuseNext(int times, int status, const QString& error) {
  const QMutexLocker lock(&m_mutex);
  m_refusals = times;
  m_refusalStatus = status;
  m_refusal = error;
}

QList<QUrlQuery> TokenProvider::requests() const {
  const QMutexLocker lock(&m_mutex);
  return m_requests;
}

int TokenProvider::redemptions(const QString& user) const {
  const QMutexLocker lock(&m_mutex);
  return m_redemptions.value(user);
}

int TokenProvider::reuses() const {
  const QMutexLocker lock(&m_mutex);
  return m_reuses;
}

sandbox::HttpResponse TokenProvider::configuration() const {
  return sandbox::jsonResponse({{"issuer", authority()},
                                {"authorization_endpoint", authority() + "/authorize"},
                                {"token_endpoint", authority() + "/token"}});
}

sandbox::HttpResponse TokenProvider::token(const sandbox::HttpRequest& request) {
  const QMutexLocker lock(&m_mutex);
  m_requests.append(request.form());
  sandbox::HttpResponse response = redeem(m_requests.last());
  response.delay = m_nextDelays.isEmpty() ? m_delay : m_nextDelays.takeFirst();
  response.headers.append(
      {"Date",
       QLocale::c().toString(QDateTime::currentDateTimeUtc(), "ddd, dd MMM yyyy hh:mm:ss").toLatin1() +
           " GMT"});
  return response;
}

sandbox::HttpResponse TokenProvider::redeem(const QUrlQuery& form) {
  if (m_refusals > 0) {
    --m_refusals;
    return refusedWith(m_refusal, m_refusalStatus);
  }
  if (m_refusesScopes && form.hasQueryItem("scope")) return refusedWith("invalid_scope");
  const QString token = formValue(form, "refresh_token");
  const auto known = m_familyOf.constFind(token);
  if (known == m_familyOf.constEnd()) return refusedWith("invalid_grant");
  Family& family = m_families[*known];
  if (family.current != token) {
    if (!family.current.isEmpty()) ++m_reuses;
    family.current.clear();
    return refusedWith("invalid_grant");
  }
  if (family.clientId != formValue(form, "client_id")) return refusedWith("invalid_client", 401);
  nextToken(*known);
  return granted(family);
}

sandbox::HttpResponse TokenProvider::granted(Family& family) {
  ++m_redemptions[family.user];
  QJsonObject claims{{"iss", authority()},
                     {"aud", family.clientId},
                     {"exp", QDateTime::currentSecsSinceEpoch() + m_lifetime},
                     {"sub", "subject-of-" + family.user},
                     {"upn", family.user}};
  QJsonObject answer{{"token_type", "Bearer"},
                     {"access_token", QStringLiteral("access-of-%1-%2").arg(family.user).arg(m_number)},
                     {"refresh_token", family.current},
                     {"expires_in", m_lifetime}};
  if (m_edit) m_edit(answer, claims);
  if (!claims.isEmpty()) answer.insert("id_token", unsignedIdToken(claims));
  return sandbox::jsonResponse(answer);
}

QString TokenProvider::nextToken(int family) {
  const QString token = QStringLiteral("refresh-of-%1-%2").arg(m_families.at(family).user).arg(++m_number);
  m_families[family].current = token;
  m_familyOf.insert(token, family);
  return token;
}
