#include "tests/KZPreference/panes/meetings/PreferenceHost.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "bench/ReducedMotion.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "tests/kit/Input.h"

quint64 PreferenceHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  if (event.m_componentEventIndex != static_cast<quint32>(KZCommand::KZCmdWriteTelemetry)) {
    return TestHost::sendPluginCommand(event, content);
  }
  const Dictionary values = dictionaryValue(content.value_or(Dictionary()), TelemetryKey_Values);
  m_telemetry.append(textValue(values, TelemetryKey_FeatureName));
  return 0;
}

void PreferenceHost::openMeetings(Variant variant) {
  if (variant == Variant::Guest) command(KZCommand::KZCmdInitGuestPreference);
  openMeetings();
}

void PreferenceHost::openMeetings() {
  // Delete the last window first.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  command(KZCommand::KZCmdShowPreference);
  reduceMotion(window());
  if (!QTest::qWaitForWindowActive(window())) qFatal("the window does not become active");
  kit::clickItem(*window(), QStringLiteral("Meetings"));
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

void PreferenceHost::challenge(const QVariant& kind, const QVariant& warning) {
  Dictionary info;
  if (kind.isValid()) info.insert(QStringLiteral("AuthRequiringType"), kind);
  if (warning.isValid()) info.insert(QStringLiteral("ShowWarningMsg"), warning);
  KZNotificationCenter::defaultCenter().post(
      {.name = QStringLiteral("HTTPAuthenticationRequired"), .object = nullptr, .userInfo = info});
}

void PreferenceHost::click(const char* name) {
  kit::click(control(name));
}

void PreferenceHost::type(const char* name, const QString& text) {
  kit::type(control(name), text);
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

QStringList PreferenceHost::takeTelemetry() {
  return std::exchange(m_telemetry, {});
}
