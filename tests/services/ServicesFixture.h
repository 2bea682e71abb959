#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include "companion/runtime/PluginHost.h"
#include "companion/services/ServiceNetwork.h"
#include "host/KZFoundation/KZCommands.h"
#include "sandbox/Sandbox.h"
#include "tests/kit/Input.h"

// The real plug-in, a sandbox in this process, and what passes between host and plug-in.
class ServicesFixture : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  static ExchangeConfiguration quickConfiguration();

  template <typename Service>
  void collectNotices(Service& service) {
    QObject::connect(&service, &Service::message, &service,
                     [this](const QString& text) { notices.append(text); });
  }

  // The contents of the notifications of that kind, oldest first.
  QList<Dictionary> notifications(KZNotify index) const;

  const QTemporaryDir folder;
  sandbox::Sandbox played{QStringLiteral("http://127.0.0.1:1"), [](const QString&) { return false; }};
  SandboxDescription description;
  QList<QUrl> opened;
  PluginHost host{[this](const QUrl& url) {
    opened.append(url);
    return true;
  }};
  ServiceNetwork network{NetworkReach::Sandbox, quickConfiguration()};
  QStringList warnings;
  QStringList notices;

 private:
  QList<NotificationToPlugin> m_notifications;
  PluginHost::Token m_observer;
};
