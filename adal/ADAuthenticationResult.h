#pragma once

#include <functional>
#include <optional>

#include "adal/ADError.h"
#include "adal/ADTokenCacheItem.h"

enum class ADAuthenticationStatus { Succeeded = 0, UserCancelled = 1, Failed = 2 };

// The result of a request: the access token's cache item, or an error.
struct ADAuthenticationResult {
  ADAuthenticationStatus status = ADAuthenticationStatus::Failed;
  std::optional<ADError> error;
  std::optional<ADTokenCacheItem> tokenCacheItem;

  static ADAuthenticationResult succeeded(const ADTokenCacheItem& item) {
    return {ADAuthenticationStatus::Succeeded, {}, item};
  }
  static ADAuthenticationResult failed(const ADError& error) {
    const bool cancelled = error.code == ADErrorCode::UserCancelled;
    return {cancelled ? ADAuthenticationStatus::UserCancelled : ADAuthenticationStatus::Failed, error, {}};
  }
};

using ADAuthenticationCallback = std::function<void(const ADAuthenticationResult&)>;
