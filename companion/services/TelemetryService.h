#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include "companion/services/TelemetryFile.h"
#include "host/KZFoundation/Dictionary.h"

class Border;

struct TelemetryRecord {
  QDateTime time;
  QString feature;
  QString details;
};

// Keeps what the plug-in tells of the user's choices, on this machine alone. Main thread only.
class TelemetryService final : public QObject {
  Q_OBJECT

 public:
  TelemetryService(Border* border, const TelemetryFile& file);  // the border is not owned

  // Kept in the store; on where nothing is said.
  bool isOn() const;
  void setOn(bool isOn);

  QList<TelemetryRecord> newest(int count) const;
  void deleteAll();
  QString path() const { return m_file.path(); }

 Q_SIGNALS:
  void changed();
  void noticed(const QString& text);  // for the user

 private:
  void answer(quint64 command, const Content& content);

  const TelemetryFile m_file;
  bool m_isFailing = false;
};
