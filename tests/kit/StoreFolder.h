#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include "host/KZUtility/KZPlistFileHandle.h"

// A new folder with the host's store in it. Afterwards the store is in memory only.
class StoreFolder final {
 public:
  StoreFolder();
  ~StoreFolder();
  Q_DISABLE_COPY_MOVE(StoreFolder)

  static KZPlistFileHandle& store() { return KZPlistFileHandle::sharedInstance(); }

  // The store as the next run finds it.
  void reopen() const;
  // Replaces the file and opens the store again.
  void openWith(const QByteArray& bytes) const;
  static QByteArray plist(const QByteArray& entries);

  QString folder() const { return m_folder.filePath(QStringLiteral("config/store")); }
  QString file() const { return folder() + QStringLiteral("/preferences.plist"); }
  QByteArray bytes() const;
  void replace(const QByteArray& bytes) const;
  QStringList names() const;         // everything in the folder
  QByteArray setAsideBytes() const;  // null unless exactly one file was set aside

 private:
  QTemporaryDir m_folder;
};
