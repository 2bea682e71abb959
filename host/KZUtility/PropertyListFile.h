#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZSaveProblem.h"

// The property list file of KZPlistFileHandle.
class PropertyListFile final {
 public:
  explicit PropertyListFile(const QString& folder);
  ~PropertyListFile();
  Q_DISABLE_COPY_MOVE(PropertyListFile)

  QString path() const;
  // Of the last read or write.
  KZSaveProblem problem() const { return m_problem; }
  // Where a file that could not be read was moved; null when there was none.
  QString setAsidePath() const { return m_setAsidePath; }

  // Creates the folder when missing and locks it while this object exists. False when another process has it:
  // then nothing may be read or written.
  [[nodiscard]] bool lock();
  // The file's values. A file that cannot be read is set aside; when that fails, nothing is written any more.
  Dictionary read();
  // Replaces the file's values.
  void write(const Dictionary& values);

 private:
  void makeFolder() const;
  // Null when it succeeded, else the reason.
  static QString load(const QByteArray& name, Dictionary* values);
  [[nodiscard]] bool setAside();
  void fail(KZSaveProblem problem, const QString& reason);

  const QString m_folder;
  int m_lock = -1;
  QString m_setAsidePath;
  KZSaveProblem m_problem = KZSaveProblem::None;
  bool m_isExact = true;  // the last write left nothing out
};
