#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include "host/KZFoundation/Dictionary.h"

class PluginHost;

struct TelemetryRecord {
  QDateTime time;
  QString feature;
  QString details;
};

// Keeps the plug-in's telemetry on this machine, a record a line. A full file becomes the older one of two,
// whose place it takes. Main thread only.
class TelemetryService final : public QObject {
  Q_OBJECT

 public:
  static constexpr qint64 kFileBytes = 512 * 1024;

  // The host is not owned.
  TelemetryService(PluginHost* host, const QString& folder, qint64 fileBytes = kFileBytes);

  // Stored in the settings; on when absent.
  bool isOn() const;
  void setOn(bool isOn);

  QList<TelemetryRecord> newest(int count) const;
  void deleteAll();
  QString path() const;

 Q_SIGNALS:
  void changed();
  void message(const QString& text);  // for the user

 private:
  void keep(const Dictionary& record);
  // The reason when the line could not be written whole, else null; nothing of it stays then.
  [[nodiscard]] QString append(const QByteArray& line) const;
  QString olderPath() const { return path() + QStringLiteral(".1"); }

  const QString m_folder;
  const qint64 m_fileBytes;
  bool m_isFailing = false;
};
