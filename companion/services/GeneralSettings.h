#pragma once

#include <QObject>

#include "companion/services/AutostartEntry.h"
#include "host/KZFoundation/Dictionary.h"

class Border;

// Does what the user chose in the General pane. Main thread only.
class GeneralSettings final : public QObject {
  Q_OBJECT

 public:
  // Before the plug-in reads the store, in which starting at login is off until the user chooses it. The
  // border is not owned.
  GeneralSettings(Border* border, const AutostartEntry& autostart);

  // Makes the desktop agree with the store.
  void apply();

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user

 private:
  void answer(quint64 command, const Content& content);
  void startAtLogin(bool isWanted);
  QString carryOut(bool isWanted) const;

  const AutostartEntry m_autostart;
};
