#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include "companion/services/TelemetryFile.h"
#include "host/KZFoundation/Dictionary.h"

class PluginHost;

struct TelemetryRecord {
  QDateTime time;
  QString feature;
  QString details;
};

// Keeps the plug-in's telemetry in files on this machine. Main thread only.
class TelemetryService final : public QObject {
  Q_OBJECT

 public:
  TelemetryService(PluginHost* host, const TelemetryFile& file);  // the host is not owned

  // Kept in the store; on where nothing is said.
  bool isOn() const;
  void setOn(bool isOn);

  QList<TelemetryRecord> newest(int count) const;
  void deleteAll();
  QString path() const { return m_file.path(); }

 Q_SIGNALS:
  void changed();
  void message(const QString& text);  // for the user

 private:
  void keep(const Dictionary& record);

  const TelemetryFile m_file;
  bool m_isFailing = false;
};
