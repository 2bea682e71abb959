#pragma once

#include <QJsonObject>
#include <QMutex>
#include <cstdio>

// Prints one JSON object a line, each flushed at once. Any thread.
class LineWriter final {
 public:
  explicit LineWriter(std::FILE* stream) : m_stream(stream) {}

  void print(const QJsonObject& line);

 private:
  QMutex m_mutex;
  std::FILE* m_stream;  // not owned
};
