#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class PopUpButton;
class QCheckBox;

// A check box with a choice of minutes under it. The user's changes are reported with both values; the row
// itself stores nothing.
class NotificationRow : public View {
  Q_OBJECT

 public:
  // Replaces what the row shows; nothing applies the last dictionary again.
  void setPreference(const Content& preference);

 protected:
  struct Kind {
    QString label;
    QString minutesLabel;
    QStringList minutes;
    QString stateKey;
    QString minutesKey;
  };

  NotificationRow(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate, const Kind& kind);

  virtual void report(bool state, const QString& minutes) = 0;
  // Telemetry; a row has none unless it says so.
  virtual void reportClick(bool state);
  virtual void reportMinutes(const QString& minutes);

  PreferenceActionDelegateProtocol* m_actionDelegate;  // not owned

 private:
  void initAlertsLable();
  void initMinutes();
  void onButton();
  void onMinutesButton();

  const Kind m_kind;
  Dictionary m_prefs;
  QCheckBox* m_checkbox = nullptr;
  PopUpButton* m_minutesBtn = nullptr;
};
