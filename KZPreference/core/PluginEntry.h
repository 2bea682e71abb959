#pragma once

#include <QObject>

#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZFoundation/KZTokenCacheStorage.h"
#include "host/KZFoundation/KZTokenLookup.h"

// The plug-in's root object, which the host gets from QPluginLoader. Loading it connects the token cache with
// the keychain and the sign-in library's log with the trace.
class PluginEntry final : public QObject,
                          public KZPluginFactory,
                          public KZTokenLookup,
                          public KZTokenCacheStorage {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "example.brenn-mivra.KZPluginFactory/1")
  Q_INTERFACES(KZPluginFactory KZTokenLookup KZTokenCacheStorage)

 public:
  PluginEntry();

  KZPluginCoreMgr* core() override;
  void shutDown() override;

  Dictionary getAccessTokenByEmail(const QString& email, const QString& username) override;
  bool clearCacheWithError(QString* error) override;

  QString defaultSavePath() const override;
  bool readFromFile(const QString& path) override;
  bool writeToFile(const QString& path) override;
  qint32 readFromKeychain() override;
  qint32 writeToKeychain() override;
  bool clearCacheWithError(OSStatusError* error) override;
};
