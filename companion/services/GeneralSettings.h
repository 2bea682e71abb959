#pragma once

#include <QObject>

#include "companion/services/AutostartEntry.h"
#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// Does what the user chose in the General pane. Main thread only.
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
