#include "companion/inspector/InspectorEvent.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "companion/format/ValueCodec.h"
#include "companion/inspector/ValueDifference.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"

namespace {

using Group = InspectorEvent::Group;
using Form = InspectorEvent::Form;

constexpr qsizetype kLongestName = 200;
constexpr qsizetype kLongestContent = InspectorEvent::mostBytes / qsizetype{sizeof(QChar)};
// Content that is nested deeply would grow a thousand times.
constexpr qsizetype kLongestIndented = 8 * kLongestContent;

QString cutTo(qsizetype longest, const QString& text) {
  if (text.size() <= longest) return text;
  const QString mark = QStringLiteral("… (cut; %1 characters in all)").arg(text.size());
  qsizetype kept = longest - mark.size();
  if (text.at(kept - 1).isHighSurrogate()) --kept;
  return text.left(kept) + mark;
}

QString maskedText(const QString& text) {
  return kzMaskSecrets({{QString(), text}}).value(QString()).toString();
}

QString jsonText(const Content& content) {
  if (!content) return QStringLiteral("none");
  const QJsonObject object = valuecodec::encode(kzMaskSecrets(*content)).toObject();
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

InspectorEvent jsonEvent(Group group, const char* kind, const QString& name, const Content& content) {
  return {.group = group,
          .kind = QString::fromLatin1(kind),
          .name = name,
          .form = Form::Json,
          .content = jsonText(content)};
}

InspectorEvent textEvent(Group group, const char* kind, const QString& name, const QString& text) {
  return {.group = group, .kind = QString::fromLatin1(kind), .name = name, .content = maskedText(text)};
}

InspectorEvent commandEvent(const char* kind, KZCommand command, const Content& content) {
  const auto number = static_cast<quint64>(command);
  InspectorEvent event =
      jsonEvent(Group::Commands, kind, QString::fromLatin1(kzCommandName(number)), content);
  event.number = number;
  return event;
}

InspectorEvent notificationEvent(KZNotify index, const Content& content) {
  const auto table = kzNotifyTable();
  const auto row = std::ranges::find(table, index, &KZNotifyRow::index);
  InspectorEvent event = jsonEvent(Group::Notifications, "Notification",
                                   row == table.end() ? QString() : QString::fromLatin1(row->name), content);
  event.number = static_cast<quint64>(index);
  return event;
}

InspectorEvent telemetryEvent(const Content& content) {
  const Dictionary values = dictionaryValue(content.value_or(Dictionary()), TelemetryKey_Values);
  const QString feature = textValue(values, TelemetryKey_FeatureName);
  return jsonEvent(Group::Telemetry, "Telemetry",
                   feature.isEmpty() ? QStringLiteral("KZCmdWriteTelemetry") : feature,
                   values.isEmpty() ? content : Content(values));
}

InspectorEvent roomEvent(const PersonalRoomChange& room) {
  Dictionary given;
  if (!room.joinUrl.isNull()) given.insert(QStringLiteral("join"), room.joinUrl);
  if (!room.sipUrl.isNull()) given.insert(QStringLiteral("sip"), room.sipUrl);
  return jsonEvent(Group::Notifications, "Personal room", QStringLiteral("setPMRJoinUrl:sipUrl:"), given);
}

InspectorEvent fromPlugin(InspectorEvent event) {
  event.isFromPlugin = true;
  return event;
}

InspectorEvent storeEvent(const StoreChange& change) {
  return {.group = Group::Store,
          .kind = QStringLiteral("Store write"),
          .name = change.key,
          .form = Form::Difference,
          .content = valueDifference(change.key, change.before, change.after).join(u'\n')};
}

InspectorEvent unboundedEvent(const PluginEvent& event) {
  return std::visit(
      Overloaded{[](const PluginLoad& load) {
                   return textEvent(Group::Traces, "Trace", QStringLiteral("load"), load.path);
                 },
                 [](const CommandToPlugin& triggered) {
                   return commandEvent("Command to plug-in", triggered.command, triggered.content);
                 },
                 [](const CommandToHost& sent) {
                   if (sent.command == KZCommand::KZCmdWriteTelemetry) return telemetryEvent(sent.content);
                   return fromPlugin(commandEvent("Command to host", sent.command, sent.content));
                 },
                 [](const NotificationToPlugin& notified) {
                   return notificationEvent(notified.index, notified.content);
                 },
                 [](const PersonalRoomChange& room) { return roomEvent(room); },
                 [](const CredentialRequest& request) {
                   return jsonEvent(Group::SignIn, "Challenge", request.name, request.userInfo);
                 },
                 [](const CredentialResponse& response) {
                   return fromPlugin(jsonEvent(Group::SignIn, "Answer", response.name, response.userInfo));
                 },
                 [](const AddressRequest& request) {
                   return fromPlugin(
                       textEvent(Group::SignIn, "Address", QStringLiteral("openURL"), request.address));
                 },
                 [](const WarningShown& warning) {
                   return textEvent(Group::Warnings, "Warning", maskedText(warning.title), warning.message);
                 },
                 [](const StoreChange& change) { return storeEvent(change); },
                 [](const KeychainChange& change) {
                   const bool isWritten = change.kind == KeychainChange::Kind::Written;
                   return textEvent(Group::Store, "Keychain", change.account,
                                    isWritten ? QStringLiteral("written") : QStringLiteral("removed"));
                 },
                 // Secrets are masked where the trace is written.
                 [](const KZTraceRecord& trace) -> InspectorEvent {
                   return {.level = trace.level, .name = trace.method, .content = trace.text};
                 }},
      event);
}

}  // namespace

InspectorEvent InspectorEvent::of(const PluginEvent& event) {
  InspectorEvent bounded = unboundedEvent(event);
  bounded.time = QDateTime::currentMSecsSinceEpoch();
  bounded.name = cutTo(kLongestName, bounded.name);
  bounded.content = cutTo(kLongestContent, bounded.content);
  return bounded;
}

qsizetype InspectorEvent::bytes() const {
  return qsizetype{sizeof(InspectorEvent)} + (name.size() + content.size()) * qsizetype{sizeof(QChar)};
}

QString InspectorEvent::title() const {
  return number == 0 ? name : QStringLiteral("%1 %2").arg(number).arg(name);
}

QString InspectorEvent::kindTitle() const {
  if (level == KZTraceLevel::Info) return kind;
  return QStringLiteral("%1 (%2)").arg(kind, QLatin1String(kzTraceLevelName(level)));
}

QString InspectorEvent::wholeContent() const {
  const QJsonDocument json = form == Form::Json ? QJsonDocument::fromJson(content.toUtf8()) : QJsonDocument();
  const QByteArray indented = json.toJson();
  return json.isNull() || indented.size() > kLongestIndented ? content
                                                             : QString::fromUtf8(indented).trimmed();
}

QByteArray InspectorEvent::exportedLine() const {
  QJsonObject line{{"time", QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs)},
                   {"kind", kind},
                   {"name", name}};
  if (number != 0) line.insert("number", static_cast<qint64>(number));
  if (group == Group::Traces) line.insert("level", kzTraceLevelName(level));
  // Content that was cut is no JSON any more.
  const QJsonDocument json = form == Form::Json ? QJsonDocument::fromJson(content.toUtf8()) : QJsonDocument();
  if (form == Form::Difference) {
    line.insert("difference", QJsonArray::fromStringList(content.split(u'\n', Qt::SkipEmptyParts)));
  } else if (json.isObject()) {
    line.insert("content", json.object());
  } else {
    line.insert("text", content);
  }
  return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}
