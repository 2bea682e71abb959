#pragma once

#include <QMutex>
#include <QStringList>
#include <vector>

#include "host/KZUtility/KZTrace.h"

// Collects the trace records of all threads while it exists. One at a time.
class TraceCollector final {
 public:
  TraceCollector();
  ~TraceCollector();
  Q_DISABLE_COPY_MOVE(TraceCollector)

  std::vector<KZTraceRecord> records() const;
  std::vector<KZTraceRecord> takeRecords();  // those since the last call
  int count(KZTraceLevel level) const;
  QString lastText() const;
  QStringList lines() const;  // "error text"
  bool has(const QString& line) const { return lines().contains(line); }

 private:
  mutable QMutex m_mutex;
  std::vector<KZTraceRecord> m_records;
};
