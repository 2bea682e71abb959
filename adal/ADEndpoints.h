#pragma once

#include <QStringList>
#include <QUrl>
#include <functional>
#include <optional>

#include "adal/ADAddress.h"
#include "adal/ADError.h"
#include "adal/ADRequest.h"

class ADWebClient;
struct ADWebAnswer;

// The request parameters of one generation of authorities.
struct ADProtocolGeneration {
  const char* resourceParameter;  // the parameter that names the resource
  const char* scopes;             // always requested, unless the authority does not list them
  const char* alwaysPrompt;       // always shows the sign-in page, and still gets a refresh token
};

// An authority's addresses, and the parameters that it expects.
struct ADEndpoints {
  QUrl authorization;
  QUrl token;
  const ADProtocolGeneration* generation = nullptr;
  QStringList knownScopes;   // empty: not known
  QString issuer;            // empty: not known
  bool namesIssuer = false;  // in the answer of the sign-in page

  // "resource" and "scope", as the generation expects them.
  ADParameters resourceParameters(const QString& resource) const;
  ADParameters promptParameters(ADPromptBehavior behavior) const;
};

struct ADEndpointsOrError {
  ADEndpoints endpoints;
  std::optional<ADError> error;
};

// Reads the authority's OpenID configuration document, which must be its own. If it has none (404), the usual
// paths are assumed. An authority that is neither https nor http to the loopback address is an error, and
// `done` is called at once.
void findEndpoints(ADWebClient& web, const QString& authority,
                   const std::function<void(const ADEndpointsOrError&)>& done);

// Whether the names are of one authority: equal except for a slash at the end.
bool isIssuer(const QString& issuer, const QString& authority);

ADEndpointsOrError endpointsFromAnswer(const QString& authority, const ADWebAnswer& answer);
