#include "companion/services/TelemetryFile.h"

#include <QDir>
#include <QFile>
#include <algorithm>

namespace {

constexpr auto kOwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

}  // namespace

QString TelemetryFile::path() const {
  return QDir(m_folder).filePath(QStringLiteral("telemetry.jsonl"));
}

QStringList TelemetryFile::paths() const {
  QStringList all{path()};
  for (int number = 1; number < m_limits.files; ++number) {
    all.append(path() + QLatin1Char('.') + QString::number(number));
  }
  return all;
}

QString TelemetryFile::append(const QByteArray& line) const {
  if (!QDir().mkpath(m_folder)) return QStringLiteral("the folder cannot be made");
  const QByteArray text = line + '\n';
  if (!makeRoom(text.size())) return QStringLiteral("its folder cannot be changed");
  QFile file(path());
  if (!file.open(QIODevice::Append | QIODevice::Unbuffered, kOwnerOnly)) return file.errorString();
  const qint64 before = file.size();
  if (file.write(text) == text.size()) return {};
  const QString reason = file.errorString();
  // Half a line would spoil the next one.
  (void)file.resize(before);
  return reason;
}

bool TelemetryFile::makeRoom(qint64 bytes) const {
  const qint64 present = QFile(path()).size();
  if (present == 0 || present + bytes <= m_limits.fileBytes) return true;
  const QStringList all = paths();
  QFile::remove(all.last());
  for (qsizetype place = all.size() - 1; place > 0; --place) {
    QFile::rename(all.at(place - 1), all.at(place));
  }
  return !QFile::exists(path());
}

QList<QByteArray> TelemetryFile::newest(int count) const {
  QList<QByteArray> lines;
  for (const QString& one : paths()) {
    QFile file(one);
    if (!file.open(QIODevice::ReadOnly)) continue;
    QList<QByteArray> older = file.read(m_limits.fileBytes).split('\n');
    older.removeAll(QByteArray());
    std::reverse(older.begin(), older.end());
    lines.append(older);
    if (lines.size() >= count) break;
  }
  return lines.mid(0, count);
}

bool TelemetryFile::removeAll() const {
  bool isGone = true;
  for (const QString& one : paths()) isGone = (!QFile::exists(one) || QFile::remove(one)) && isGone;
  return isGone;
}
