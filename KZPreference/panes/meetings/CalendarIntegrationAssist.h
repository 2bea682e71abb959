#pragma once

#include "host/KZFoundation/Dictionary.h"

// Reads the calendar settings from the store and the keychain, at each call. Main thread only.
class CalendarIntegrationAssist {
 public:
  Dictionary getCalendarIntegrationPrefs() const;
  Dictionary exchangePrefs() const;  // the applied account; empty when there is none

  // Discovery found a server, and there is a credential for it.
  bool isOLAccountApplied() const;
  bool isCredentialExisting() const;

  // Exactly one "@" with text on both sides; deliberately no other rule.
  bool isValidEmailAddress(const QString& email) const;
};
