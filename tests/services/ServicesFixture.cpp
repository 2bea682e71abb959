#include "tests/services/ServicesFixture.h"

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"

void ServicesFixture::SetUp() {
  KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
  m_watching = border.addObserver([this](const Crossing& crossing) {
    if (crossing.kind == Crossing::Kind::Warning) warnings.append(crossing.text);
    if (crossing.kind == Crossing::Kind::Notification) {
      m_notifications.append({crossing.number, crossing.content.value_or(Dictionary())});
    }
  });
  ASSERT_TRUE(border.loadPlugin(PREFERENCES)) << border.errorText().toStdString();
  if (!sites.listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
  network.useSandbox(sites.describe());
}

void ServicesFixture::TearDown() {
  border.shutDown();
  KZPlistFileHandle::sharedInstance().close();
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
}

NetworkConfiguration ServicesFixture::quickConfiguration() {
  NetworkConfiguration quick;
  quick.limits.request = std::chrono::milliseconds(1500);
  return quick;
}

QList<Dictionary> ServicesFixture::notifications(KZNotify index) const {
  QList<Dictionary> contents;
  for (const auto& [number, content] : m_notifications) {
    if (number == static_cast<quint64>(index)) contents.append(content);
  }
  return contents;
}
