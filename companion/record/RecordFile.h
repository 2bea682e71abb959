#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <functional>

// The file that a record is written to, readable by its user alone. Each line is with the system before
// `write` returns, and only whole lines stay: a record ends well wherever its program ends. One thread at a
// time.
class RecordFile final {
 public:
  // An existing file is replaced. False when the file cannot be made; `errorText` tells why.
  [[nodiscard]] bool open(const QString& path);
  // False when the line could not be written; `errorText` tells why.
  [[nodiscard]] bool write(const QByteArray& line);  // without its end

  // Replaces each line by what `revised` makes of it, all of them or none. False when that is not possible;
  // `errorText` tells why. Nothing can be written afterwards.
  [[nodiscard]] bool finish(const std::function<QByteArray(const QByteArray& line)>& revised);

  QString path() const { return m_file.fileName(); }
  const QString& errorText() const { return m_errorText; }

 private:
  QFile m_file;
  qint64 m_size = 0;
  QString m_errorText;
};
