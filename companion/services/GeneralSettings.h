#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// The desktop's entry that starts this program after login.
class AutostartEntry final {
 public:
  // `folder` is where the desktop looks for such entries; `program` an absolute path.
  AutostartEntry(const QString& folder, const QString& program, const QStringList& arguments = {});

  static QString userFolder();

  // The reason when the entry could not be written or removed, else null. A correct entry is not written
  // again.
  [[nodiscard]] QString write() const;
  [[nodiscard]] QString remove() const;

  QString path() const;
  QByteArray content() const;

 private:
  QString m_folder;
  QStringList m_command;
};

// Applies the user's choices in the General pane. Main thread only.
class GeneralSettings final : public QObject {
  Q_OBJECT

 public:
  // Before the plug-in reads the store, in which starting at login is off until the user chooses it. The
  // host is not owned.
  GeneralSettings(PluginHost* host, const AutostartEntry& autostart);

  // Makes the desktop agree with the store.
  void apply();

 Q_SIGNALS:
  void message(const QString& text);  // for the user

 private:
  void update(const Dictionary& values);
  void startAtLogin(bool isWanted);
  QString carryOut(bool isWanted) const;

  const AutostartEntry m_autostart;
};
