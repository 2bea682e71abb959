#pragma once

#include <QIODevice>
#include <QJsonObject>
#include <QString>

// Reads the steps of a script, one JSON object a line; empty lines and lines that begin with "#" are skipped.
class StepReader final {
 public:
  enum class Answer { Step, End, Unreadable };

  explicit StepReader(QIODevice* device) : m_device(device) {}  // open for reading, not owned

  Answer next();

  const QJsonObject& step() const { return m_step; }
  const QString& errorText() const { return m_errorText; }
  int lineNumber() const { return m_lineNumber; }  // of the last line read, from 1

 private:
  Answer parse(const QByteArray& line);

  QIODevice* m_device;
  QJsonObject m_step;
  QString m_errorText;
  int m_lineNumber = 0;
};
