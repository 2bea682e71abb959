#pragma once

#include <QString>
#include <QUrl>

enum class ADPromptBehavior { Auto = 0, Always = 1 };  // Always shows the sign-in page

// The user that a sign-in is for.
struct ADUserIdentifier {
  enum class Type { OptionalDisplayableId = 1 };  // a hint that fills in the sign-in page, not a requirement

  static ADUserIdentifier identifierWithId(const QString& id, Type type) { return {id, type}; }

  QString id;
  Type type = Type::OptionalDisplayableId;

  bool operator==(const ADUserIdentifier&) const = default;
};

struct ADSignInRequest {
  QString authority;
  QString resource;
  QString clientId;
  QUrl redirectUri;
  ADPromptBehavior promptBehavior = ADPromptBehavior::Always;
  ADUserIdentifier userIdentifier;
  QString extraQueryParameters;
  QString claims;

  bool operator==(const ADSignInRequest&) const = default;
};

struct ADRefreshRequest {
  QString authority;
  QString refreshToken;
  QString resource;
  QString clientId;
};
