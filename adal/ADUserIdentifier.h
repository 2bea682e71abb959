#pragma once

#include <QString>

// Who is to sign in.
struct ADUserIdentifier {
  enum class Type { OptionalDisplayableId = 1 };  // a hint that fills in the sign-in page, not a requirement

  static ADUserIdentifier identifierWithId(const QString& id, Type type) { return {id, type}; }

  QString id;
  Type type = Type::OptionalDisplayableId;

  bool operator==(const ADUserIdentifier&) const = default;
};
