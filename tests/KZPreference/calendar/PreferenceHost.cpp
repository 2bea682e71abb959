#include "tests/KZPreference/calendar/PreferenceHost.h"

#include <QClipboard>
#include <QJsonDocument>
#include <QTest>

#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/WindowController.h"

PreferenceHost::PreferenceHost() {
  KZPlistFileHandle::sharedInstance().close();
  KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
  setKZTraceSink([this](const KZTraceRecord& record) { m_trace.append(record.method + u' ' + record.text); });
  m_core = &KZPreferenceCore::sharedInstance();
  m_core->setDelegate(this);
}

PreferenceHost::~PreferenceHost() {
  KZPreferenceCore::shutDown();
  setKZTraceSink({});
}

quint64 PreferenceHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  const Dictionary dictionary = content.value_or(Dictionary());
  if (event.m_componentEventIndex == static_cast<quint32>(KZCommand::KZCmdWriteTelemetry)) {
    m_telemetry.append(textValue(dictionaryValue(dictionary, TelemetryKey_Values), TelemetryKey_FeatureName));
    return 0;
  }
  const QJsonDocument json(QJsonObject::fromVariantMap(dictionary));
  const QString text =
      content ? QString::fromUtf8(json.toJson(QJsonDocument::Compact)) : QStringLiteral("nil");
  m_sent.append(QStringLiteral("%1 %2").arg(event.m_componentEventIndex).arg(text));
  return 0;
}

void PreferenceHost::command(KZCommand number, const Content& content) {
  m_core->onHandleOtherPluginsTriggerCommand(static_cast<quint64>(number), content);
}

void PreferenceHost::notify(KZNotify index, const Content& content) {
  m_core->onHandleServicesNotification(KZEventIdentify::monitorwith(0, static_cast<quint64>(index)), content);
}

QWidget* PreferenceHost::window() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (qobject_cast<Window*>(widget) && WindowController::of(widget)) return widget;
  return nullptr;
}

void PreferenceHost::openMeetings(Variant variant) {
  if (variant == Variant::Guest) command(KZCommand::KZCmdInitGuestPreference);
  openMeetings();
}

void PreferenceHost::openMeetings() {
  // A window that was dropped goes first.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  command(KZCommand::KZCmdShowPreference);
  WindowController::of(window())->setProperty("crossFade", false);
  for (QToolButton* button : window()->findChildren<QToolButton*>())
    if (button->text() == QLatin1String("Meetings")) button->click();
  if (!QTest::qWaitForWindowActive(window())) qFatal("the window does not become active");
}

void PreferenceHost::needCredential() {
  notify(KZNotify::KZNotifyExchangeResolvingNeedCredential,
         Dictionary{{kKZResult, kKZSuccess},
                    {QRT_ExchangeDiscover_ExchangeType, QRT_ExchangeDiscover_ExchangeTypeOnpremise}});
}

void PreferenceHost::resolve(const Dictionary& result) {
  notify(KZNotify::KZNotifyResolveExchangeDone, result);
}

void PreferenceHost::resolveWith(const QString& email) {
  const Dictionary exchange{
      {kKZCalendarIntegrationExchangeEmail, email},
      {kKZCalendarIntegrationExchangeExternalUrl, QStringLiteral("https://mail.brenn.example")}};
  resolve({{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_Exchange, exchange}});
}

void PreferenceHost::fail(const QString& message) {
  resolve({{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, message}}}});
}

void PreferenceHost::click(const char* name) {
  auto& button = control(name);
  QTest::mouseClick(&button, Qt::LeftButton, {}, button.rect().center());
}

void PreferenceHost::type(const char* name, const QString& text) {
  auto& field = control(name);
  field.setFocus();
  QTest::keySequence(&field, QKeySequence::SelectAll);
  if (text.isEmpty()) return QTest::keyClick(&field, Qt::Key_Delete);
  QTest::keyClicks(&field, text);
}

void PreferenceHost::paste(const char* name, const QString& text) {
  auto& field = control(name);
  QGuiApplication::clipboard()->setText(text);
  field.setFocus();
  QTest::keySequence(&field, QKeySequence::SelectAll);
  QTest::keySequence(&field, QKeySequence::Paste);
}

void PreferenceHost::press(const char* name, Qt::Key key) {
  QTest::keyClick(&control(name), key);
}

QStringList PreferenceHost::takeSent() {
  return std::exchange(m_sent, {});
}
QStringList PreferenceHost::takeTelemetry() {
  return std::exchange(m_telemetry, {});
}
