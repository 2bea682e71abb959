#pragma once

#include <QString>
#include <QVariant>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZHostExport.h"

// Helpers that a host offers its plug-ins. Main thread only.
class KZ_HOST_EXPORT KZUtility {
 public:
  static KZUtility& sharedInstance();

  // One check for updates at a time; the host clears the flag when a check ends.
  bool isCheckForUpdatesInProgress() const { return m_isCheckForUpdatesInProgress; }
  void setCheckForUpdatesInProgressFlag() { m_isCheckForUpdatesInProgress = true; }
  void cleanCheckForUpdatesInProgressFlag() { m_isCheckForUpdatesInProgress = false; }

  // Values that last for this run. A missing value removes the key.
  QVariant getKZMemCacheData(const QString& key) const;
  void setKZMemCacheData(const QString& key, const QVariant& value);

  // The value of a JSON text, a scalar too; invalid when it is malformed, larger than 4 MiB, or nested deeper
  // than 64 levels. A null is an invalid value and is never stored under a key; whole numbers are qlonglong.
  // Any thread.
  static QVariant JSONValueFromString(const QString& text);

  // The text cut to at most 128 UTF-16 units, without splitting a character.
  static QString getLengthLimitationStringValue(const QString& text);

  // One "@" with a name before it and a domain with a dot after it; no blanks or control characters.
  static bool validateEmail(const QString& text);

 private:
  KZUtility() = default;

  bool m_isCheckForUpdatesInProgress = false;
  Dictionary m_memCache;
};
