#include "companion/services/TelemetryService.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "companion/runtime/PluginHost.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

const QString kIsTelemetryOnKey = QStringLiteral("companionTelemetry");
constexpr qsizetype kLongestValue = 100;

// Only what is known to say nothing about a person.
QByteArray lineOf(const Dictionary& content) {
  const Dictionary said = dictionaryValue(content, TelemetryKey_Values);
  QJsonObject values;
  for (const QString& key :
       {TelemetryKey_FeatureName, TelemetryKey_ActionFrom, TelemetryKey_ClickFrom, TelemetryKey_Boolean,
        TelemetryKey_MeetingAlertMinutes, TelemetryKey_CalendarListDaysCount}) {
    const QString text = textValue(said, key).left(kLongestValue);
    if (!text.isNull()) values.insert(key, text);
  }
  const QJsonObject record{
      {QStringLiteral("time"), QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)},
      {TelemetryKey_MetricName, textValue(content, TelemetryKey_MetricName).left(kLongestValue)},
      {TelemetryKey_Values, values}};
  return QJsonDocument(record).toJson(QJsonDocument::Compact);
}

// The names say first what kind of name they are.
QString shownValue(const QJsonValue& value) {
  return value.toString().section(QLatin1Char('_'), -1);
}

TelemetryRecord recordOf(const QByteArray& line) {
  const QJsonObject record = QJsonDocument::fromJson(line).object();
  const QJsonObject values = record.value(TelemetryKey_Values).toObject();
  QStringList details;
  for (auto value = values.begin(); value != values.end(); ++value) {
    if (value.key() != TelemetryKey_FeatureName) details.append(shownValue(value.value()));
  }
  return {.time = QDateTime::fromString(record.value(QLatin1String("time")).toString(), Qt::ISODateWithMs),
          .feature = shownValue(values.value(TelemetryKey_FeatureName)),
          .details = details.join(QStringLiteral(", "))};
}

}  // namespace

TelemetryService::TelemetryService(PluginHost* host, const TelemetryFile& file) : m_file(file) {
  host->handle(KZCommand::KZCmdWriteTelemetry, this, [this](const Content& content) {
    if (content && isOn()) keep(*content);
  });
}

bool TelemetryService::isOn() const {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  return !store.isPlistKeyExist(kIsTelemetryOnKey) || store.value(kIsTelemetryOnKey).toBool();
}

void TelemetryService::setOn(bool isOn) {
  KZPlistFileHandle::sharedInstance().setValue(kIsTelemetryOnKey, isOn);
  Q_EMIT changed();
}

void TelemetryService::keep(const Dictionary& record) {
  const QString reason = m_file.append(lineOf(record));
  // Once until it works again: every click would say it.
  if (!reason.isEmpty() && !m_isFailing) {
    Q_EMIT message(QStringLiteral("Telemetry cannot be kept in %1: %2. Free some space, or switch it off.")
                       .arg(path(), reason));
  }
  m_isFailing = !reason.isEmpty();
  Q_EMIT changed();
}

QList<TelemetryRecord> TelemetryService::newest(int count) const {
  QList<TelemetryRecord> records;
  for (const QByteArray& line : m_file.newest(count)) records.append(recordOf(line));
  return records;
}

void TelemetryService::deleteAll() {
  if (!m_file.removeAll()) {
    Q_EMIT message(
        QStringLiteral("%1 cannot be deleted. Make its folder writable and try again.").arg(path()));
  }
  Q_EMIT changed();
}
