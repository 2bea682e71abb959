#include "companion/services/TelemetryService.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "companion/runtime/PluginHost.h"
#include "companion/texts/CompanionText.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

const QString kIsTelemetryOnKey = QStringLiteral("companionTelemetry");
constexpr qsizetype kLongestValue = 100;
constexpr auto kOwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

// Only values that are known to contain no personal data.
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

// The names begin with their kind.
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

TelemetryService::TelemetryService(PluginHost* host, const QString& folder, qint64 fileBytes)
    : m_folder(folder), m_fileBytes(fileBytes) {
  host->handle(KZCommand::KZCmdWriteTelemetry, this, [this](const Content& content) {
    if (content && isOn()) keep(*content);
  });
}

bool TelemetryService::isOn() const {
  return asFlag(KZPlistFileHandle::sharedInstance().value(kIsTelemetryOnKey)).value_or(true);
}

void TelemetryService::setOn(bool isOn) {
  KZPlistFileHandle::sharedInstance().setValue(kIsTelemetryOnKey, isOn);
  Q_EMIT changed();
}

void TelemetryService::keep(const Dictionary& record) {
  const QString reason = append(lineOf(record) + '\n');
  // Traced once until it works again, not at every click.
  if (!reason.isEmpty() && !m_isFailing) {
    Q_EMIT message(companionText("Telemetry cannot be kept in %1: %2. Free some space, or switch it off.")
                       .arg(path(), reason));
  }
  m_isFailing = !reason.isEmpty();
  Q_EMIT changed();
}

QString TelemetryService::path() const {
  return QDir(m_folder).filePath(QStringLiteral("telemetry.jsonl"));
}

QString TelemetryService::append(const QByteArray& line) const {
  if (!QDir().mkpath(m_folder)) return companionText("the folder cannot be made");
  const qint64 present = QFileInfo(path()).size();
  if (present > 0 && present + line.size() > m_fileBytes) {
    QFile::remove(olderPath());
    if (!QFile::rename(path(), olderPath())) return companionText("its folder cannot be changed");
  }
  QFile file(path());
  if (!file.open(QIODevice::Append | QIODevice::Unbuffered, kOwnerOnly)) return file.errorString();
  const qint64 before = file.size();
  if (file.write(line) == line.size()) return {};
  const QString reason = file.errorString();
  // Half a line would spoil the next one.
  (void)file.resize(before);
  return reason;
}

QList<TelemetryRecord> TelemetryService::newest(int count) const {
  QList<QByteArray> lines;
  for (const QString& one : {olderPath(), path()}) {
    QFile file(one);
    if (file.open(QIODevice::ReadOnly)) lines.append(file.read(m_fileBytes).split('\n'));
  }
  lines.removeAll(QByteArray());
  std::reverse(lines.begin(), lines.end());
  QList<TelemetryRecord> records;
  for (const QByteArray& line : lines.mid(0, count)) records.append(recordOf(line));
  return records;
}

void TelemetryService::deleteAll() {
  for (const QString& one : {olderPath(), path()}) {
    if (!QFile::exists(one) || QFile::remove(one)) continue;
    Q_EMIT message(companionText("%1 cannot be deleted. Make its folder writable and try again.").arg(one));
  }
  Q_EMIT changed();
}
