#pragma once

#include <QObject>

#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZFoundation/KZTokenLookup.h"

// What the loader hands to the host. Loading it wires the token cache to the keychain and the sign-in
// library's log to the trace.
class PluginEntry final : public QObject, public KZPluginFactory, public KZTokenLookup {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "example.brenn-mivra.KZPluginFactory/1")
  Q_INTERFACES(KZPluginFactory KZTokenLookup)

 public:
  PluginEntry();

  KZPluginCoreMgr* core() override;
  void shutDown() override;

  Dictionary getAccessTokenByEmail(const QString& email, const QString& username) override;
  bool clearCacheWithError(QString* error) override;
};
