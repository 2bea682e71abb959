#pragma once

#include <QJsonValue>
#include <QMutex>
#include <QString>
#include <cstdio>
#include <initializer_list>
#include <utility>

// Prints one JSON object a line, its members in the given order, each line flushed at once. Any thread.
class LineWriter final {
 public:
  using Member = std::pair<QString, QJsonValue>;

  explicit LineWriter(std::FILE* stream) : m_stream(stream) {}

  void print(std::initializer_list<Member> members);

 private:
  QMutex m_mutex;
  std::FILE* m_stream;  // not owned
};
