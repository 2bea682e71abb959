#include "adal/ADAuthenticationContext.h"

#include <QList>
#include <utility>
#include <vector>

#include "adal/ADRefresh.h"
#include "adal/ADSignIn.h"

struct ADAuthenticationContext::Private {
  QString authority;
  std::vector<std::shared_ptr<ADSignIn>> signIns;
  std::vector<std::shared_ptr<ADRefresh>> refreshes;
};

ADAuthenticationContext::ADAuthenticationContext(const QString& authority) : d(std::make_unique<Private>()) {
  d->authority = authority;
}

ADAuthenticationContext::~ADAuthenticationContext() {
  for (const std::shared_ptr<ADSignIn>& signIn : d->signIns) signIn->completions().leave(this);
  for (const std::shared_ptr<ADRefresh>& refresh : d->refreshes) refresh->completions().leave(this);
}

std::unique_ptr<ADAuthenticationContext> ADAuthenticationContext::initWithAuthority(
    const QString& authority, ADAuthorityValidation /*validation*/, ADError& error) {
  // Empty is not valid either.
  if (!QUrl(authority, QUrl::StrictMode).isValid()) {
    error = {ADErrorCode::InvalidArgument, QStringLiteral("the authority is no address")};
    return nullptr;
  }
  return std::unique_ptr<ADAuthenticationContext>(new ADAuthenticationContext(authority));
}

void ADAuthenticationContext::acquireTokenWithResource(
    const QString& resource, const QString& clientId, const QUrl& redirectUri,
    ADPromptBehavior promptBehavior, const ADUserIdentifier& userIdentifier,
    const QString& extraQueryParameters, const QString& claims, ADAuthenticationCallback completionBlock) {
  const std::shared_ptr<ADSignIn> signIn = ADSignIn::forRequest({.authority = d->authority,
                                                                 .resource = resource,
                                                                 .clientId = clientId,
                                                                 .redirectUri = redirectUri,
                                                                 .promptBehavior = promptBehavior,
                                                                 .userIdentifier = userIdentifier,
                                                                 .extraQueryParameters = extraQueryParameters,
                                                                 .claims = claims});
  std::erase_if(d->signIns,
                [](const std::shared_ptr<ADSignIn>& old) { return old->completions().isEmpty(); });
  signIn->completions().join(this, std::move(completionBlock));
  d->signIns.push_back(signIn);
}

// A refresh does not use the redirect address.
void ADAuthenticationContext::acquireTokenWithRefreshToken(const QString& refreshToken,
                                                           const QString& resource, const QString& clientId,
                                                           const QUrl& /*redirectUri*/,
                                                           ADAuthenticationCallback completionBlock) {
  const std::shared_ptr<ADRefresh> refresh = ADRefresh::forRequest(
      {.authority = d->authority, .refreshToken = refreshToken, .resource = resource, .clientId = clientId});
  std::erase_if(d->refreshes,
                [](const std::shared_ptr<ADRefresh>& old) { return old->completions().isEmpty(); });
  refresh->completions().join(this, std::move(completionBlock));
  d->refreshes.push_back(refresh);
}
