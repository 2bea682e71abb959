#pragma once

#include <QMutex>
#include <QStringList>

#include "host/KZUtility/KZTrace.h"

// Keeps what is traced while it lives, as "level text".
class TraceRecorder final {
 public:
  TraceRecorder();
  ~TraceRecorder();
  Q_DISABLE_COPY_MOVE(TraceRecorder)

  QStringList lines();
  bool has(const QString& line) { return lines().contains(line); }

 private:
  QMutex m_mutex;
  QStringList m_lines;
};
