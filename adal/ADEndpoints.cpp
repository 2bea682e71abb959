#include "adal/ADEndpoints.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "adal/ADAddress.h"
#include "adal/ADLogger.h"
#include "adal/ADWebClient.h"

namespace {

constexpr ADProtocolGeneration resourceGeneration{"resource", "openid", "login"};
// With scopes, a refresh token is granted only when consent is requested too.
constexpr ADProtocolGeneration scopeGeneration{"scope", "openid profile email offline_access",
                                               "login consent"};

QString withoutSlash(const QString& address) {
  return address.endsWith(QLatin1Char('/')) ? address.chopped(1) : address;
}

QUrl pathBelow(const QString& authority, const char* path) {
  return QUrl(withoutSlash(authority) + QLatin1String(path));
}

QStringList textsUnder(const QJsonObject& document, const char* key) {
  QStringList texts;
  for (const QJsonValue& value : document.value(QLatin1String(key)).toArray()) texts.append(value.toString());
  return texts;
}

// An authority that grants refresh tokens by scope lists that scope in its configuration, or has a version in
// its address.
const ADProtocolGeneration& generationOf(const QString& authority, const QStringList& knownScopes) {
  const QString path = QUrl(authority).path(QUrl::FullyEncoded);
  const bool takesScopes = knownScopes.contains(QLatin1String("offline_access")) ||
                           path.endsWith(QLatin1String("/v2.0")) || path.endsWith(QLatin1String("/v2.0/"));
  return takesScopes ? scopeGeneration : resourceGeneration;
}

// A resource that is only a host becomes the scope for all of its permissions; anything longer is a list of
// scopes already.
QString scopeForResource(const QString& resource) {
  const QUrl address(resource, QUrl::StrictMode);
  const bool isBareHost = !address.host().isEmpty() &&
                          (address.path().isEmpty() || address.path() == QLatin1String("/")) &&
                          !address.hasQuery();
  if (!isBareHost) return resource;
  return resource + QLatin1String(resource.endsWith(QLatin1Char('/')) ? ".default" : "/.default");
}

// A remote authority must not direct requests to programs on this machine.
bool isAllowedEndpoint(const QUrl& endpoint, const QString& authority) {
  return isAllowedAddress(endpoint) && !endpoint.hasFragment() &&
         (endpoint.scheme() == QLatin1String("https") || QUrl(authority).scheme() == QLatin1String("http"));
}

ADEndpointsOrError endpointsFailure(ADErrorCode code, const QString& details) {
  return {{}, ADError{code, details}};
}

}  // namespace

bool isIssuer(const QString& issuer, const QString& authority) {
  return !issuer.isEmpty() && withoutSlash(issuer) == withoutSlash(authority);
}

ADParameters ADEndpoints::resourceParameters(const QString& resource) const {
  ADParameters parameters;
  QStringList scopes = QString::fromLatin1(generation->scopes).split(QLatin1Char(' '));
  if (!knownScopes.isEmpty())
    scopes.removeIf([this](const QString& scope) { return !knownScopes.contains(scope); });
  const QString parameter = QString::fromLatin1(generation->resourceParameter);
  if (parameter == QLatin1String("scope")) {
    if (!resource.isEmpty()) scopes.append(scopeForResource(resource));
  } else if (!resource.isEmpty()) {
    parameters.append({parameter, resource});
  }
  if (!scopes.isEmpty()) parameters.append({QStringLiteral("scope"), scopes.join(QLatin1Char(' '))});
  return parameters;
}

ADParameters ADEndpoints::promptParameters(ADPromptBehavior behavior) const {
  if (behavior == ADPromptBehavior::Auto) return {};
  return {{QStringLiteral("prompt"), QString::fromLatin1(generation->alwaysPrompt)}};
}

ADEndpointsOrError endpointsFromAnswer(const QString& authority, const ADWebAnswer& answer) {
  if (answer.error) return {{}, answer.error};
  if (answer.status == 404 || answer.status == 410) {
    ADLogger::log(ADLogLevel::Info,
                  QStringLiteral("the authority has no configuration: the usual paths are assumed"));
    return {{.authorization = pathBelow(authority, "/oauth2/authorize"),
             .token = pathBelow(authority, "/oauth2/token"),
             .generation = &generationOf(authority, {}),
             .knownScopes = {},
             .issuer = {}},
            {}};
  }
  const QString status = QStringLiteral("status %1 for the configuration").arg(answer.status);
  if (answer.status == 429 || answer.status >= 500) return endpointsFailure(ADErrorCode::Unavailable, status);
  if (answer.status != 200) return endpointsFailure(ADErrorCode::ServerAnswer, status);

  const QJsonObject configuration = QJsonDocument::fromJson(answer.body).object();
  const QStringList scopes = textsUnder(configuration, "scopes_supported");
  const ADEndpoints endpoints{
      .authorization = QUrl(configuration.value(QLatin1String("authorization_endpoint")).toString()),
      .token = QUrl(configuration.value(QLatin1String("token_endpoint")).toString()),
      .generation = &generationOf(authority, scopes),
      .knownScopes = scopes,
      .issuer = configuration.value(QLatin1String("issuer")).toString(),
      .namesIssuer =
          configuration.value(QLatin1String("authorization_response_iss_parameter_supported")).toBool()};
  if (!isIssuer(endpoints.issuer, authority))
    return endpointsFailure(ADErrorCode::ServerAnswer,
                            QStringLiteral("the configuration does not name this issuer"));
  if (!isAllowedEndpoint(endpoints.authorization, authority) ||
      !isAllowedEndpoint(endpoints.token, authority))
    return endpointsFailure(ADErrorCode::AddressNotAllowed,
                            QStringLiteral("in the authority's configuration"));
  return {endpoints, {}};
}

void findEndpoints(ADWebClient& web, const QString& authority,
                   const std::function<void(const ADEndpointsOrError&)>& done) {
  const QUrl address(authority, QUrl::StrictMode);
  if (!isAllowedAddress(address) || address.hasQuery() || address.hasFragment()) {
    done({{}, ADError{ADErrorCode::AddressNotAllowed, QStringLiteral("the authority")}});
    return;
  }
  web.get(pathBelow(authority, "/.well-known/openid-configuration"),
          [authority, done](const ADWebAnswer& answer) { done(endpointsFromAnswer(authority, answer)); });
}
