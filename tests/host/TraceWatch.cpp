#include "tests/host/TraceWatch.h"

#include <QMutexLocker>
#include <algorithm>

TraceWatch::TraceWatch() {
  setKZTraceSink([this](const KZTraceRecord& record) {
    const QMutexLocker lock(&m_mutex);
    m_records.push_back(record);
  });
}

TraceWatch::~TraceWatch() {
  setKZTraceSink({});
}

std::vector<KZTraceRecord> TraceWatch::records() const {
  const QMutexLocker lock(&m_mutex);
  return m_records;
}

int TraceWatch::count(KZTraceLevel level) const {
  const auto all = records();
  return static_cast<int>(
      std::ranges::count_if(all, [=](const KZTraceRecord& record) { return record.level == level; }));
}

QString TraceWatch::lastText() const {
  const auto all = records();
  return all.empty() ? QString() : all.back().text;
}
