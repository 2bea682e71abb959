#pragma once

#include <QString>
#include <QUrl>
#include <memory>

#include "adal/ADALExport.h"
#include "adal/ADAuthenticationResult.h"
#include "adal/ADRequest.h"

enum class ADAuthorityValidation { Off };

// Gets tokens from one authority and stores them in the default cache. Main thread only; nothing blocks. Each
// completion is called once, from the event loop, a sign-in's when no refresh is in progress. Destroying the
// context cancels its requests without calling their completions; a refresh token that was sent already is
// still replaced by its successor.
class ADAL_EXPORT ADAuthenticationContext final {
 public:
  // Null, with the reason in `error`, for a text that cannot be read as an address. Requests to an address
  // that is neither https nor http to the loopback address fail with AddressNotAllowed.
  [[nodiscard]] static std::unique_ptr<ADAuthenticationContext> initWithAuthority(
      const QString& authority, ADAuthorityValidation validation, ADError& error);
  ~ADAuthenticationContext();
  Q_DISABLE_COPY_MOVE(ADAuthenticationContext)

  // Signs a user in, in the system's browser. A request equal to one in progress joins it: it opens no second
  // browser and gets the same result.
  void acquireTokenWithResource(const QString& resource, const QString& clientId, const QUrl& redirectUri,
                                ADPromptBehavior promptBehavior, const ADUserIdentifier& userIdentifier,
                                const QString& extraQueryParameters, const QString& claims,
                                ADAuthenticationCallback completionBlock);

  // Redeems a refresh token. A request equal to one in progress joins it; another one for the same stored
  // token waits for it, and redeems what is stored by then. A stored token of another authority's origin or
  // of another client is not sent: the request fails.
  void acquireTokenWithRefreshToken(const QString& refreshToken, const QString& resource,
                                    const QString& clientId, const QUrl& redirectUri,
                                    ADAuthenticationCallback completionBlock);

 private:
  explicit ADAuthenticationContext(const QString& authority);

  struct Private;
  std::unique_ptr<Private> d;
};
