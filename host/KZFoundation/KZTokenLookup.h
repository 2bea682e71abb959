#pragma once

#include <QtPlugin>

#include "host/KZFoundation/Dictionary.h"

// Access to the plug-in's token cache, which its root object offers beside KZPluginFactory. Main thread only.
class KZTokenLookup {
 public:
  KZTokenLookup() = default;
  virtual ~KZTokenLookup() = default;
  Q_DISABLE_COPY_MOVE(KZTokenLookup)

  // The cached access token of that account with its state; empty when there is none. Either text may be
  // null.
  virtual Dictionary getAccessTokenByEmail(const QString& email, const QString& username) = 0;

  // As KZTokenCacheStorage's, with the reason for a failure as a text in `error`, unless that is null.
  [[nodiscard]] virtual bool clearCacheWithError(QString* error) = 0;
};

Q_DECLARE_INTERFACE(KZTokenLookup, "example.brenn-mivra.KZTokenLookup/1")
