#include "companion/inspector/InspectorEvent.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <algorithm>

#include "companion/format/ValueCodec.h"
#include "companion/texts/CompanionText.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"

namespace {

using Group = InspectorEvent::Group;

constexpr qsizetype kLongestTitle = 200;
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

QVariant masked(const QVariant& value, const QString& key = {}) {
  return kzMaskSecrets({{key, value}}).value(key);
}

QString jsonText(const QVariant& value) {
  return QString::fromUtf8(valuecodec::compactText(valuecodec::encode(value)));
}

InspectorEvent textEvent(Group group, const char* kind, const QString& title, const QString& text) {
  return {group, QString::fromLatin1(kind), title, masked(text).toString()};
}

InspectorEvent jsonEvent(Group group, const char* kind, const QString& title, const Content& content) {
  return {group, QString::fromLatin1(kind), title, jsonText(content ? masked(*content) : QVariant())};
}

QString numbered(quint64 number, const char* name) {
  return QStringLiteral("%1 %2").arg(number).arg(QLatin1String(name));
}

InspectorEvent commandEvent(const char* kind, KZCommand command, const Content& content) {
  const auto number = static_cast<quint64>(command);
  return jsonEvent(Group::Commands, kind, numbered(number, kzCommandName(number)), content);
}

InspectorEvent telemetryEvent(const Content& content) {
  const Dictionary values = dictionaryValue(content.value_or(Dictionary()), TelemetryKey_Values);
  const QString feature = textValue(values, TelemetryKey_FeatureName);
  return jsonEvent(Group::Telemetry, textKey("Telemetry"),
                   feature.isEmpty() ? QStringLiteral("KZCmdWriteTelemetry") : feature,
                   values.isEmpty() ? content : Content(values));
}

// One line for each value inside, "path: JSON". Masked values are not nested without end.
QStringList linesOf(const QString& path, const QVariant& value) {
  QStringList lines;
  if (value.typeId() == QMetaType::QVariantMap) {
    for (const auto& [key, inner] : value.toMap().asKeyValueRange())
      lines += linesOf(path + '.' + key, inner);
  } else if (value.typeId() == QMetaType::QVariantList) {
    int place = 0;
    for (const QVariant& inner : value.toList())
      lines += linesOf(QStringLiteral("%1[%2]").arg(path).arg(place++), inner);
  }
  if (lines.isEmpty() && value.isValid()) lines.append(path + ": " + jsonText(value));
  return lines;
}

QStringList linesOnlyIn(const QStringList& lines, const QStringList& others, const QString& mark) {
  const QSet<QString> known(others.begin(), others.end());
  QStringList marked;
  for (const QString& line : lines) {
    if (!known.contains(line)) marked.append(mark + line);
  }
  return marked;
}

QString differenceOf(const StoreChange& change) {
  const QStringList before = linesOf(change.key, masked(change.before, change.key));
  const QStringList after = linesOf(change.key, masked(change.after, change.key));
  const QStringList lines = linesOnlyIn(before, after, "- ") + linesOnlyIn(after, before, "+ ");
  return lines.isEmpty() ? QStringLiteral("Only masked values differ.") : lines.join(u'\n');
}

struct EventDescription {
  InspectorEvent operator()(const PluginLoad& load) const {
    return textEvent(Group::Traces, textKey("Trace"), QStringLiteral("load"), load.path);
  }
  InspectorEvent operator()(const CommandToPlugin& triggered) const {
    return commandEvent(textKey("Command to plug-in"), triggered.command, triggered.content);
  }
  InspectorEvent operator()(const CommandToHost& sent) const {
    if (sent.command == KZCommand::KZCmdWriteTelemetry) return telemetryEvent(sent.content);
    return commandEvent(textKey("Command to host"), sent.command, sent.content);
  }
  InspectorEvent operator()(const NotificationToPlugin& notified) const {
    const auto table = kzNotifyTable();
    const auto row = std::ranges::find(table, notified.index, &KZNotifyRow::index);
    const QString title = numbered(static_cast<quint64>(notified.index), row == table.end() ? "" : row->name);
    return jsonEvent(Group::Notifications, textKey("Notification"), title, notified.content);
  }
  InspectorEvent operator()(const PersonalRoomChange& room) const {
    const Dictionary given = {{"join", room.joinUrl}, {"sip", room.sipUrl}};
    return jsonEvent(Group::Notifications, textKey("Personal room"), QStringLiteral("setPMRJoinUrl:sipUrl:"),
                     given);
  }
  InspectorEvent operator()(const CredentialRequest& request) const {
    return jsonEvent(Group::SignIn, textKey("Challenge"), request.name, request.userInfo);
  }
  InspectorEvent operator()(const CredentialResponse& response) const {
    return jsonEvent(Group::SignIn, textKey("Answer"), response.name, response.userInfo);
  }
  InspectorEvent operator()(const AddressRequest& request) const {
    return textEvent(Group::SignIn, textKey("Address"), QStringLiteral("openURL"), request.address);
  }
  InspectorEvent operator()(const WarningShown& warning) const {
    return textEvent(Group::Warnings, textKey("Warning"), masked(warning.title).toString(), warning.message);
  }
  InspectorEvent operator()(const StoreChange& change) const {
    return {Group::Store, QString::fromLatin1(textKey("Store write")), change.key, differenceOf(change)};
  }
  InspectorEvent operator()(const KeychainChange& change) const {
    const bool isWritten = change.kind == KeychainChange::Kind::Written;
    return textEvent(Group::Store, textKey("Keychain"), change.account, isWritten ? "written" : "removed");
  }
  // Secrets are masked where the trace is written.
  InspectorEvent operator()(const KZTraceRecord& trace) const {
    static constexpr const char* kinds[] = {textKey("Trace"), textKey("Trace (warning)"),
                                            textKey("Trace (error)")};
    const char* kind = kinds[static_cast<int>(trace.level)];
    InspectorEvent event = {Group::Traces, QString::fromLatin1(kind), trace.method, trace.text};
    event.isError = trace.level == KZTraceLevel::Error;
    return event;
  }
};

}  // namespace

InspectorEvent InspectorEvent::of(const PluginEvent& event) {
  InspectorEvent bounded = std::visit(EventDescription(), event);
  bounded.isFromPlugin = std::holds_alternative<CommandToHost>(event) ||
                         std::holds_alternative<CredentialResponse>(event) ||
                         std::holds_alternative<AddressRequest>(event);
  bounded.time = QDateTime::currentMSecsSinceEpoch();
  bounded.title = cutTo(kLongestTitle, bounded.title);
  bounded.content = cutTo(kLongestContent, bounded.content);
  return bounded;
}

qsizetype InspectorEvent::bytes() const {
  return qsizetype{sizeof(InspectorEvent)} + (title.size() + content.size()) * qsizetype{sizeof(QChar)};
}

QString InspectorEvent::wholeContent() const {
  const QJsonDocument json = QJsonDocument::fromJson(content.toUtf8());
  const QByteArray indented = json.toJson();
  return json.isNull() || indented.size() > kLongestIndented ? content
                                                             : QString::fromUtf8(indented).trimmed();
}

QByteArray InspectorEvent::exportedLine() const {
  // Content that was cut is no JSON any more.
  const QJsonDocument json = QJsonDocument::fromJson(content.toUtf8());
  const QJsonObject line{{"time", QDateTime::fromMSecsSinceEpoch(time).toUTC().toString(Qt::ISODateWithMs)},
                         {"kind", kind},
                         {"name", title},
                         {"content", json.isObject() ? QJsonValue(json.object()) : QJsonValue(content)}};
  return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}
