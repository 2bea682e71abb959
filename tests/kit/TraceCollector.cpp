#include "tests/kit/TraceCollector.h"

#include <QMutexLocker>
#include <algorithm>
#include <utility>

namespace {

QString levelName(KZTraceLevel level) {
  if (level == KZTraceLevel::Error) return QStringLiteral("error ");
  return level == KZTraceLevel::Warning ? QStringLiteral("warning ") : QStringLiteral("info ");
}

}  // namespace

TraceCollector::TraceCollector() {
  setKZTraceSink([this](const KZTraceRecord& record) {
    const QMutexLocker lock(&m_mutex);
    m_records.push_back(record);
  });
}

TraceCollector::~TraceCollector() {
  setKZTraceSink({});
}

std::vector<KZTraceRecord> TraceCollector::records() const {
  const QMutexLocker lock(&m_mutex);
  return m_records;
}

std::vector<KZTraceRecord> TraceCollector::takeRecords() {
  const QMutexLocker lock(&m_mutex);
  return std::exchange(m_records, {});
}

int TraceCollector::count(KZTraceLevel level) const {
  const auto all = records();
  return static_cast<int>(
      std::ranges::count_if(all, [=](const KZTraceRecord& record) { return record.level == level; }));
}

QString TraceCollector::lastText() const {
  const auto all = records();
  return all.empty() ? QString() : all.back().text;
}

QStringList TraceCollector::lines() const {
  QStringList lines;
  for (const KZTraceRecord& record : records()) lines.append(levelName(record.level) + record.text);
  return lines;
}
