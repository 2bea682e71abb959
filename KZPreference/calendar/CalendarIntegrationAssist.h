#pragma once

#include "host/KZFoundation/Dictionary.h"

// Answers about the stored calendar settings, computed afresh at every call. Main thread only.
class CalendarIntegrationAssist {
 public:
  Dictionary getCalendarIntegrationPrefs() const;
  Dictionary exchangePrefs() const;  // the applied account; empty when there is none

  // Discovery found a service, and a credential for it is present.
  bool isOLAccountApplied() const;
  bool isCredentialExisting() const;

  // Something on both sides of exactly one "@"; deliberately no more.
  bool isValidEmailAddress(const QString& email) const;
};
