#include "companion/inspector/InspectorEvent.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <algorithm>

#include "companion/format/ValueCodec.h"
#include "companion/inspector/ValueDifference.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"

namespace {

using Kind = InspectorEvent::Kind;

constexpr qsizetype kLongestName = 200;
constexpr qsizetype kLongestContent = InspectorEvent::mostBytes / qsizetype{sizeof(QChar)};

QString cutTo(qsizetype longest, const QString& text) {
  if (text.size() <= longest) return text;
  const QString mark = QStringLiteral("… (cut; %1 characters in all)").arg(text.size());
  qsizetype kept = longest - mark.size();
  if (text.at(kept - 1).isHighSurrogate()) --kept;
  return text.left(kept) + mark;
}

QString maskedText(const QString& text) {
  return kzMaskSecrets({{QStringLiteral("text"), text}}).value(QStringLiteral("text")).toString();
}

QString jsonText(const Content& content) {
  if (!content) return QStringLiteral("none");
  const QJsonObject object = valuecodec::encode(kzMaskSecrets(*content)).toObject();
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString notificationName(KZNotify index) {
  const auto table = kzNotifyTable();
  const auto row = std::ranges::find(table, index, &KZNotifyRow::index);
  return row == table.end() ? QString() : QString::fromLatin1(row->name);
}

InspectorEvent numberedEvent(Kind kind, quint64 number, const QString& name, const Content& content) {
  return {.kind = kind, .number = number, .name = name, .content = jsonText(content)};
}

InspectorEvent commandEvent(Kind kind, KZCommand command, const Content& content) {
  const auto number = static_cast<quint64>(command);
  return numberedEvent(kind, number, QString::fromLatin1(kzCommandName(number)), content);
}

InspectorEvent telemetryEvent(const Content& content) {
  const Dictionary values = dictionaryValue(content.value_or(Dictionary()), TelemetryKey_Values);
  const QString feature = textValue(values, TelemetryKey_FeatureName);
  return numberedEvent(Kind::Telemetry, static_cast<quint64>(KZCommand::KZCmdWriteTelemetry),
                       feature.isEmpty() ? QStringLiteral("KZCmdWriteTelemetry") : feature,
                       values.isEmpty() ? content : Content(values));
}

InspectorEvent roomEvent(const PersonalRoomChange& room) {
  Dictionary given;
  if (!room.joinUrl.isNull()) given.insert(QStringLiteral("join"), room.joinUrl);
  if (!room.sipUrl.isNull()) given.insert(QStringLiteral("sip"), room.sipUrl);
  return numberedEvent(Kind::PersonalRoom, 0, QStringLiteral("setPMRJoinUrl:sipUrl:"), given);
}

InspectorEvent addressEvent(const AddressRequest& request) {
  // What follows the place may carry a sign-in's state; the place suffices.
  constexpr auto parts = QUrl::RemoveQuery | QUrl::RemoveFragment | QUrl::RemoveUserInfo;
  return {.kind = Kind::Address,
          .name = QStringLiteral("openURL"),
          .content = QUrl(request.address).toDisplayString(parts)};
}

InspectorEvent keychainEvent(const KeychainChange& change) {
  const bool isWritten = change.kind == KeychainChange::Kind::Written;
  return {.kind = Kind::Keychain,
          .name = change.account,
          .content = isWritten ? QStringLiteral("written") : QStringLiteral("removed")};
}

InspectorEvent textOf(const PluginEvent& event) {
  return std::visit(
      Overloaded{
          [](const PluginLoad& load) -> InspectorEvent {
            return {.kind = Kind::Trace, .name = QStringLiteral("load"), .content = load.path};
          },
          [](const CommandToPlugin& triggered) {
            return commandEvent(Kind::CommandToPlugin, triggered.command, triggered.content);
          },
          [](const CommandToHost& sent) {
            if (sent.command == KZCommand::KZCmdWriteTelemetry) return telemetryEvent(sent.content);
            return commandEvent(Kind::CommandToHost, sent.command, sent.content);
          },
          [](const NotificationToPlugin& notified) {
            const auto index = static_cast<quint64>(notified.index);
            return numberedEvent(Kind::Notification, index, notificationName(notified.index),
                                 notified.content);
          },
          [](const PersonalRoomChange& room) { return roomEvent(room); },
          [](const CredentialRequest& request) {
            return numberedEvent(Kind::Challenge, 0, request.name, request.userInfo);
          },
          [](const CredentialResponse& response) {
            return numberedEvent(Kind::Answer, 0, response.name, response.userInfo);
          },
          [](const AddressRequest& request) { return addressEvent(request); },
          [](const WarningShown& warning) -> InspectorEvent {
            return {.kind = Kind::Warning,
                    .name = maskedText(warning.title),
                    .content = maskedText(warning.message)};
          },
          [](const StoreChange& change) -> InspectorEvent {
            return {.kind = Kind::StoreWrite,
                    .name = change.key,
                    .content = valueDifference(change.key, change.before, change.after).join(u'\n')};
          },
          [](const KeychainChange& change) { return keychainEvent(change); },
          // Secrets are masked where the trace is written.
          [](const KZTraceRecord& trace) -> InspectorEvent {
            return {.kind = Kind::Trace, .level = trace.level, .name = trace.method, .content = trace.text};
          }},
      event);
}

// Indented, content that is nested deeply grows a thousand times.
bool isDeeplyNested(const QString& json) {
  constexpr int deepest = 24;
  int depth = 0;
  return std::ranges::any_of(json, [&depth](QChar sign) {
    if (sign == u'{' || sign == u'[') ++depth;
    if (sign == u'}' || sign == u']') --depth;
    return depth > deepest;
  });
}

InspectorEvent bounded(InspectorEvent event) {
  event.time = QDateTime::currentMSecsSinceEpoch();
  event.name = cutTo(kLongestName, event.name);
  event.content = cutTo(kLongestContent, event.content);
  return event;
}

}  // namespace

InspectorEvent InspectorEvent::of(const PluginEvent& event) {
  return bounded(textOf(event));
}

qsizetype InspectorEvent::bytes() const {
  return qsizetype{sizeof(InspectorEvent)} + (name.size() + content.size()) * qsizetype{sizeof(QChar)};
}

QString InspectorEvent::title() const {
  return number == 0 || kind == Kind::Telemetry ? name : QStringLiteral("%1 %2").arg(number).arg(name);
}

QString InspectorEvent::kindTitle() const {
  if (kind != Kind::Trace || level == KZTraceLevel::Info) return kindText(kind);
  return level == KZTraceLevel::Error ? QStringLiteral("Trace (error)") : QStringLiteral("Trace (warning)");
}

QString InspectorEvent::wholeContent() const {
  if (isDeeplyNested(content)) return content;
  const QJsonDocument json = QJsonDocument::fromJson(content.toUtf8());
  return json.isNull() ? content : QString::fromUtf8(json.toJson()).trimmed();
}

QStringList InspectorEvent::difference() const {
  return kind == Kind::StoreWrite ? content.split(u'\n', Qt::SkipEmptyParts) : QStringList();
}

QString kindText(InspectorEvent::Kind kind) {
  switch (kind) {
    case Kind::CommandToPlugin:
      return QStringLiteral("Command to plug-in");
    case Kind::CommandToHost:
      return QStringLiteral("Command to host");
    case Kind::Notification:
      return QStringLiteral("Notification");
    case Kind::PersonalRoom:
      return QStringLiteral("Personal room");
    case Kind::Challenge:
      return QStringLiteral("Challenge");
    case Kind::Answer:
      return QStringLiteral("Answer");
    case Kind::Address:
      return QStringLiteral("Address");
    case Kind::Warning:
      return QStringLiteral("Warning");
    case Kind::Telemetry:
      return QStringLiteral("Telemetry");
    case Kind::StoreWrite:
      return QStringLiteral("Store write");
    case Kind::Keychain:
      return QStringLiteral("Keychain");
    case Kind::Trace:
      break;
  }
  return QStringLiteral("Trace");
}
