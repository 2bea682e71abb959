#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <functional>

#include "companion/runtime/PluginHost.h"
#include "companion/services/ServiceNetwork.h"
#include "host/KZFoundation/KZCommands.h"
#include "sandbox/MeetingSite.h"

// The real plug-in, meeting sites that are played in this process, and all that crosses between.
class ServicesFixture : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  static NetworkConfiguration quickConfiguration();
  static bool waitUntil(const std::function<bool()>& isTrue) { return QTest::qWaitFor(isTrue, 8000); }

  // The contents of the notifications of that kind, oldest first.
  QList<Dictionary> notifications(KZNotify index) const;

  const QTemporaryDir folder;
  sandbox::MeetingSite sites;
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
