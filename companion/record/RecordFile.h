#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// The file that a record is written to, readable by its user alone. Each line is passed to the system before
// `write` returns, and only complete lines are kept, so that a record is valid even when its program is
// killed. One thread at a time.
class RecordFile final {
 public:
  // An existing file is replaced. False when the file cannot be made; `errorText` says why.
  [[nodiscard]] bool open(const QString& path);
  // False when the line could not be written; `errorText` says why.
  [[nodiscard]] bool write(const QByteArray& line);  // without its end

  QString path() const { return m_file.fileName(); }
  const QString& errorText() const { return m_errorText; }

 private:
  QFile m_file;
  qint64 m_size = 0;
  QString m_errorText;
};
