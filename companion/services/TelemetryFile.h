#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// Records as lines of text, the newest at the end. A full file makes room by moving aside; the oldest goes.
class TelemetryFile final {
 public:
  struct Limits {
    qint64 fileBytes = 256 * 1024;
    int files = 4;
  };

  explicit TelemetryFile(const QString& folder) : TelemetryFile(folder, Limits()) {}
  TelemetryFile(const QString& folder, Limits limits) : m_folder(folder), m_limits(limits) {}

  // On its way to the disk when this returns. The reason when it could not be written whole, else null;
  // nothing of it stays then. `line` has no end of line in it.
  [[nodiscard]] QString append(const QByteArray& line) const;
  // The newest first, at most that many.
  QList<QByteArray> newest(int count) const;
  // False when one stays.
  [[nodiscard]] bool removeAll() const;

  QString path() const;

 private:
  QStringList paths() const;  // the newest first
  [[nodiscard]] bool makeRoom(qint64 bytes) const;

  QString m_folder;
  Limits m_limits;
};
