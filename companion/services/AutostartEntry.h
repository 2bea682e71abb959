#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// The desktop's entry that starts this program after login.
class AutostartEntry final {
 public:
  // `folder` is where the desktop looks for such entries; `program` an absolute path.
  AutostartEntry(const QString& folder, const QString& program, const QStringList& arguments = {});

  static QString userFolder();

  // The reason when the entry could not be written or removed, else null. What is right already is left
  // alone.
  [[nodiscard]] QString write() const;
  [[nodiscard]] QString remove() const;

  QString path() const;
  QByteArray content() const;

 private:
  QString m_folder;
  QStringList m_command;
};
