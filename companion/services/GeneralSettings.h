#pragma once

#include <QObject>

#include "companion/services/AutostartEntry.h"
#include "host/KZFoundation/Dictionary.h"

class Border;

// Does what the user chose in the General pane. Main thread only.
class GeneralSettings final : public QObject {
  Q_OBJECT

 public:
  GeneralSettings(Border* border, const AutostartEntry& autostart);  // the border is not owned

  // Makes the desktop agree with the store, where the user has chosen: without a choice nothing is written.
  void apply();

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user

 private:
  void answer(quint64 command, const Content& content);
  void startAtLogin(bool isWanted);
  QString carryOut(bool isWanted) const;

  const AutostartEntry m_autostart;
};
