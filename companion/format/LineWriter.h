#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QMutex>
#include <QString>
#include <cstdio>
#include <utility>

// Prints one JSON object a line, its members in the given order, each line flushed at once. Any thread.
class LineWriter final {
 public:
  using Member = std::pair<QString, QJsonValue>;

  // The object as it is printed, without the line's end.
  static QByteArray textOf(const QList<Member>& members);

  explicit LineWriter(std::FILE* stream) : m_stream(stream) {}

  void print(const QList<Member>& members);

 private:
  QMutex m_mutex;
  std::FILE* m_stream;  // not owned
};
