#include "tests/services/ServicesFixture.h"

#include <QJsonDocument>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"

void ServicesFixture::SetUp() {
  KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
  m_observer = host.addObserver([this](const PluginEvent& event, PluginHost::Phase phase) {
    if (phase == PluginHost::Phase::End) return;
    if (const auto* warning = std::get_if<WarningShown>(&event)) warnings.append(warning->message);
    if (const auto* notified = std::get_if<NotificationToPlugin>(&event)) m_notifications.append(*notified);
  });
  ASSERT_TRUE(host.load(PREFERENCES)) << host.errorText().toStdString();
  if (!played.listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
  description = SandboxDescription::fromJson(QJsonDocument(played.describe()).toJson());
  network.useSandbox(description);
}

void ServicesFixture::TearDown() {
  host.shutDown();
  KZPlistFileHandle::sharedInstance().close();
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
}

ExchangeConfiguration ServicesFixture::quickConfiguration() {
  ExchangeConfiguration quick;
  quick.network.limits.request = std::chrono::milliseconds(1500);
  return quick;
}

QList<Dictionary> ServicesFixture::notifications(KZNotify index) const {
  QList<Dictionary> contents;
  for (const NotificationToPlugin& notified : m_notifications) {
    if (notified.index == index) contents.append(notified.content.value_or(Dictionary()));
  }
  return contents;
}
