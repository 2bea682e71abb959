#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMutex>
#include <optional>

// Compares what comes out of the plug-in with what a record says came out. Any thread.
class RecordCheck final {
 public:
  struct Difference {
    int line;  // of the record, from 1; 0 behind its end
    QJsonValue expected;
    QJsonValue got;  // null: nothing
  };

  explicit RecordCheck(const QByteArray& record);

  // Takes the next line of the record that is being made anew.
  void compare(const QByteArray& line);

  // After the last line: the first difference; nothing when all was as it should be.
  std::optional<Difference> difference();

 private:
  struct Expectation {
    int line;
    QJsonObject output;
  };

  QMutex m_mutex;
  QList<Expectation> m_expected;
  qsizetype m_next = 0;
  std::optional<Difference> m_difference;
};
