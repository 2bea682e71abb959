#include "companion/inspector/InspectorEvent.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <algorithm>

#include "companion/inspector/ValueDifference.h"
#include "companion/session/ValueCodec.h"
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

QString notificationName(quint64 index) {
  const auto table = kzNotifyTable();
  const auto row = std::ranges::find(table, static_cast<KZNotify>(index), &KZNotifyRow::index);
  return row == table.end() ? QString() : QString::fromLatin1(row->name);
}

bool isTelemetry(const Crossing& crossing) {
  return crossing.kind == Crossing::Kind::CommandToHost &&
         crossing.number == static_cast<quint64>(KZCommand::KZCmdWriteTelemetry);
}

InspectorEvent telemetryEvent(const Crossing& crossing) {
  const Dictionary record = crossing.content.value_or(Dictionary());
  const Dictionary values = dictionaryValue(record, TelemetryKey_Values);
  const QString feature = textValue(values, TelemetryKey_FeatureName);
  return {.kind = Kind::Telemetry,
          .number = crossing.number,
          .name = feature.isEmpty() ? QStringLiteral("KZCmdWriteTelemetry") : feature,
          .content = jsonText(values.isEmpty() ? crossing.content : Content(values))};
}

InspectorEvent commandEvent(Kind kind, const Crossing& crossing) {
  return {.kind = kind,
          .number = crossing.number,
          .name = QString::fromLatin1(kzCommandName(crossing.number)),
          .content = jsonText(crossing.content)};
}

InspectorEvent textOf(const Crossing& crossing) {
  switch (crossing.kind) {
    case Crossing::Kind::CommandToPlugin:
      return commandEvent(Kind::CommandToPlugin, crossing);
    case Crossing::Kind::CommandToHost:
      return isTelemetry(crossing) ? telemetryEvent(crossing) : commandEvent(Kind::CommandToHost, crossing);
    case Crossing::Kind::Notification:
      return {.kind = Kind::Notification,
              .number = crossing.number,
              .name = notificationName(crossing.number),
              .content = jsonText(crossing.content)};
    case Crossing::Kind::PersonalRoom:
      return {.kind = Kind::PersonalRoom,
              .name = QStringLiteral("setPMRJoinUrl:sipUrl:"),
              .content = jsonText(crossing.content)};
    case Crossing::Kind::Challenge:
      return {.kind = Kind::Challenge, .name = crossing.name, .content = jsonText(crossing.content)};
    case Crossing::Kind::Answer:
      return {.kind = Kind::Answer, .name = crossing.name, .content = jsonText(crossing.content)};
    case Crossing::Kind::Address: {
      // What follows the place may carry a sign-in's state; the place suffices.
      constexpr auto parts = QUrl::RemoveQuery | QUrl::RemoveFragment | QUrl::RemoveUserInfo;
      return {.kind = Kind::Address,
              .name = QStringLiteral("openURL"),
              .content = QUrl(crossing.text).toDisplayString(parts)};
    }
    case Crossing::Kind::Warning:
      return {.kind = Kind::Warning, .name = maskedText(crossing.name), .content = maskedText(crossing.text)};
    case Crossing::Kind::Trace:
      break;
  }
  // Whoever traced has masked it.
  return {.kind = Kind::Trace, .level = crossing.level, .name = crossing.name, .content = crossing.text};
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

InspectorEvent InspectorEvent::of(const Crossing& crossing) {
  return bounded(textOf(crossing));
}

InspectorEvent InspectorEvent::ofStoreWrite(const QString& key, const QVariant& before,
                                            const QVariant& after) {
  return bounded(
      {.kind = Kind::StoreWrite, .name = key, .content = valueDifference(key, before, after).join(u'\n')});
}

InspectorEvent InspectorEvent::ofKeychain(const QString& account, KeychainChange change) {
  return bounded(
      {.kind = Kind::Keychain,
       .name = account,
       .content = change == KeychainChange::Written ? QStringLiteral("written") : QStringLiteral("removed")});
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
