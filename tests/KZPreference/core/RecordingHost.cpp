#include "tests/KZPreference/core/RecordingHost.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QToolButton>

#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"
#include "platform/WindowController.h"

RecordingHost::RecordingHost() {
  EXPECT_TRUE(KZPlistFileHandle::sharedInstance().open(m_folder.path()));
  KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  KZApplicationHelper::sharedInstance().setSiteEnableOutlook(true);
  setKZTraceSink([this](const KZTraceRecord& record) { m_trace.append(record.method + u' ' + record.text); });
  KZWarningWindowController::setObserver(
      [this](const QString& title, const QString& message) { m_warnings.append(title + u'|' + message); });
  m_core = &KZPreferenceCore::sharedInstance();
  m_core->setDelegate(this);
}

RecordingHost::~RecordingHost() {
  KZPreferenceCore::shutDown();
  EXPECT_EQ(window(), nullptr);
  KZWarningWindowController::setObserver({});
  setKZTraceSink({});
  KZPlistFileHandle::sharedInstance().close();
}

quint64 RecordingHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(content.value_or(Dictionary())))
                              .toJson(QJsonDocument::Compact);
  m_sent.append(QStringLiteral("%1 %2")
                    .arg(event.m_componentEventIndex)
                    .arg(content ? QString::fromUtf8(json) : QStringLiteral("nil")));
  if (const auto onSent = std::exchange(m_onNextSent, {})) onSent();
  return 17;
}

void RecordingHost::command(quint64 number, const Content& content) {
  EXPECT_EQ(m_core->onHandleOtherPluginsTriggerCommand(number, content), 0U);
}

void RecordingHost::notify(quint32 index, const Content& content) {
  EXPECT_EQ(m_core->onHandleServicesNotification(KZEventIdentify::monitorwith(0, index), content), 0U);
}

void RecordingHost::settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Window* RecordingHost::window() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* found = qobject_cast<Window*>(widget)) return found;
  return nullptr;
}

QString RecordingHost::controllerClass() {
  return window() ? QString::fromLatin1(window()->controller()->metaObject()->className()) : QString();
}

QObject* RecordingHost::findObject(const char* name) {
  QObject* found = window() ? window()->findChild<QObject*>(QString::fromLatin1(name)) : nullptr;
  if (!found) qFatal("no control is called %s", name);
  return found;
}

void RecordingHost::clickPane(const QString& label, Qt::KeyboardModifiers modifiers) {
  for (QToolButton* button : window()->findChildren<QToolButton*>()) {
    if (button->text() != label) continue;
    QTest::mouseClick(window()->windowHandle(), Qt::LeftButton, modifiers,
                      button->mapTo(window(), button->rect().center()));
    return;
  }
  qFatal("no pane is called %s", qPrintable(label));
}
