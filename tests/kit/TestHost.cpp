#include "tests/kit/TestHost.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "platform/WindowController.h"

TestHost::TestHost() {
  KZPlistFileHandle::sharedInstance().close();
  EXPECT_TRUE(KZPlistFileHandle::sharedInstance().open(m_folder.path()));
  KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  KZApplicationHelper::sharedInstance().setSiteEnableOutlook(true);
  KZWarningWindowController::setObserver(
      [this](const QString& title, const QString& message) { m_warnings.append(title + u'|' + message); });
  m_core = &KZPreferenceCore::sharedInstance();
  m_core->setDelegate(this);
}

TestHost::~TestHost() {
  KZPreferenceCore::shutDown();
  EXPECT_EQ(window(), nullptr);
  KZWarningWindowController::setObserver({});
  KZPlistFileHandle::sharedInstance().close();
}

quint64 TestHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  const QJsonDocument json(QJsonObject::fromVariantMap(content.value_or(Dictionary())));
  m_sent.append(
      QStringLiteral("%1 %2")
          .arg(event.m_componentEventIndex)
          .arg(content ? QString::fromUtf8(json.toJson(QJsonDocument::Compact)) : QStringLiteral("nil")));
  if (const auto onSent = std::exchange(m_onNextSent, {})) onSent();
  return 17;
}

void TestHost::command(quint64 number, const Content& content) {
  EXPECT_EQ(m_core->onHandleOtherPluginsTriggerCommand(number, content), 0U);
}

void TestHost::command(KZCommand number, const Content& content) {
  command(static_cast<quint64>(number), content);
}

void TestHost::notify(quint32 index, const Content& content) {
  EXPECT_EQ(m_core->onHandleServicesNotification(KZEventIdentify::monitorwith(0, index), content), 0U);
}

void TestHost::notify(KZNotify index, const Content& content) {
  notify(static_cast<quint32>(index), content);
}

Window* TestHost::window() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* const found = qobject_cast<Window*>(widget);
    if (found && found->controller()) return found;
  }
  return nullptr;
}

QStringList TestHost::takeTrace() {
  QStringList lines;
  for (const KZTraceRecord& record : m_trace.takeRecords()) lines.append(record.method + u' ' + record.text);
  return lines;
}
