#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZHostExport.h"
#include "host/KZUtility/KZSaveProblem.h"

class PropertyListFile;

// The host's settings store: an XML property list, read once and written atomically at every change. A value
// that cannot be written stays in memory for this run, with an error trace; a file that cannot be read is
// never overwritten. Unknown keys survive. Main thread only.
class KZ_HOST_EXPORT KZPlistFileHandle : public QObject {
  Q_OBJECT

 public:
  static KZPlistFileHandle& sharedInstance();

  // Locks that folder, which is created when missing, and reads the store in it; a folder that was open
  // before is closed first. False when another process has locked the folder: nothing is read or written
  // there, and the store is in memory only, as before the first call. A folder that cannot be created or
  // locked for another reason is used without a lock. The lock ends with `close` or with the process, even a
  // killed one.
  [[nodiscard]] bool open(const QString& folder);
  // Removes all values from memory, which is the only store from then on; the file stays.
  void close();
  QString filePath() const;  // null while in memory only
  // None while the file has all values, or while they are in memory only. Values that could not be saved are
  // written with the next change that succeeds.
  KZSaveProblem saveProblem() const;
  // Where `open` moved a file that it could not read, so that the settings start empty. Null when it could.
  QString setAsidePath() const { return m_setAsidePath; }

  // Keys as in the file. A missing value removes the key.
  bool isPlistKeyExist(const QString& key) const;
  QVariant value(const QString& key) const;
  void setValue(const QString& key, const QVariant& value);

  // None when absent or of another type.
  Content preferenceInfo() const;
  Content meetingNotification() const;
  Content videoDevice() const;
  Content calendarIntegration() const;
  void setPreferenceInfo(const Dictionary& info);
  void setMeetingNotification(const Dictionary& settings);
  void setVideoDevice(const Dictionary& settings);
  void setCalendarIntegration(const Dictionary& settings);

  // Null when absent or of another type.
  QString siteName() const;
  QString cdnUrl() const;
  QString userName() const;
  QString displayName() const;
  void setSiteName(const QString& name);
  void setCdnUrl(const QString& url);
  void setUserName(const QString& name);
  void setDisplayName(const QString& name);

  // False when absent or no flag; check `isPlistKeyExist` with KZLaunchAtLogin or KZEnableOutlookKZPlugin
  // first.
  bool launchAtLogin() const;
  bool enableOutlookKZPlugin() const;
  void setLaunchAtLogin(bool isOn);
  void setEnableOutlookKZPlugin(bool isOn);

 Q_SIGNALS:
  // After the change, whether or not it could be saved.
  void valueChanged(const QString& key, const QVariant& before, const QVariant& after);
  // Before `valueChanged`; `open` and `close` emit it too.
  void saveProblemChanged(KZSaveProblem problem);

 private:
  KZPlistFileHandle();
  ~KZPlistFileHandle() override;

  Content dictionaryAt(const QString& key) const;
  void reportProblem();

  Dictionary m_values;
  std::unique_ptr<PropertyListFile> m_file;
  KZSaveProblem m_problem = KZSaveProblem::None;  // as last emitted
  QString m_setAsidePath;
};
