#pragma once

#include "host/KZFoundation/Dictionary.h"

// Whoever is collecting an Exchange credential from the user. Main thread only.
class OutlookAccountAuthDelegate {
 public:
  virtual ~OutlookAccountAuthDelegate() = default;

  virtual QString username() const = 0;
  virtual QString password() const = 0;
  virtual void onAuthFailure(const Dictionary& result) = 0;  // the server refused the last credential
};
