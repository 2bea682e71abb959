#pragma once

#include <QMutex>
#include <vector>

#include "host/KZUtility/KZTrace.h"

// Collects the records of its lifetime.
class TraceWatch final {
 public:
  TraceWatch();
  ~TraceWatch();
  Q_DISABLE_COPY_MOVE(TraceWatch)

  std::vector<KZTraceRecord> records() const;
  int count(KZTraceLevel level) const;
  QString lastText() const;

 private:
  mutable QMutex m_mutex;
  std::vector<KZTraceRecord> m_records;
};
