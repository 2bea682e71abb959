#pragma once

#include <QObject>
#include <memory>

#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZFoundation/KZTokenLookup.h"
#include "tests/companion/fakeplugin/FakeWindow.h"

// A core that responds to every step of a script with a visible effect.
class FakeCore final : public KZPluginCoreMgr {
 public:
  FakeCore();
  ~FakeCore() override;

  quint64 sendPluginCommand(quint64 command, const Content& content) override;
  quint64 onHandleServicesNotification(const KZEventIdentify& event, const Content& content) override;
  void setPMRJoinUrl(const QString& joinUrl, const QString& sipUrl) override;
  const QString& pmrJoinUrl() const override { return m_joinUrl; }
  const QString& pmrSipUrl() const override { return m_sipUrl; }

  void handle(quint64 command, const Content& content);

 private:
  void show();
  void answerChallenge(const KZNotification& challenge);

  QObject m_mainThread;
  KZNotificationCenter::Token m_challenges;
  std::unique_ptr<FakeWindowController> m_controller;
  QString m_joinUrl = QStringLiteral("");
  QString m_sipUrl = QStringLiteral("");
};

class FakePlugin final : public QObject, public KZPluginFactory, public KZTokenLookup {
  Q_OBJECT
  Q_INTERFACES(KZPluginFactory KZTokenLookup)
  Q_PLUGIN_METADATA(IID "example.brenn-mivra.KZPluginFactory/1")

 public:
  KZPluginCoreMgr* core() override;
  void shutDown() override { m_core.reset(); }
  Dictionary getAccessTokenByEmail(const QString& email, const QString& username) override;
  bool clearCacheWithError(QString*) override { return true; }

 private:
  std::unique_ptr<FakeCore> m_core;
};
