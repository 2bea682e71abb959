#pragma once

#include <QtPlugin>

#include "host/KZFoundation/Dictionary.h"

// The token cache as the plug-in's root object offers it to hosts, beside KZPluginFactory. Main thread only.
class KZTokenLookup {
 public:
  KZTokenLookup() = default;
  virtual ~KZTokenLookup() = default;
  Q_DISABLE_COPY_MOVE(KZTokenLookup)

  // What the cache answers for that account; empty when it holds no token. A null text is a missing one.
  virtual Dictionary getAccessTokenByEmail(const QString& email, const QString& username) = 0;

  // Forgets every token, in the keychain too. On failure false, with the reason in `error` when it is given.
  [[nodiscard]] virtual bool clearCacheWithError(QString* error) = 0;
};

Q_DECLARE_INTERFACE(KZTokenLookup, "example.brenn-mivra.KZTokenLookup/1")
