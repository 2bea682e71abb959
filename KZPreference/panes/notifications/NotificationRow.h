#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class PopUpButton;
class QCheckBox;

// A check box with a choice of minutes below it. Each change by the user is reported with both values; the
// row stores nothing.
class NotificationRow : public View {
  Q_OBJECT

 public:
  // The size of a row with that text after its pop-up button.
  static Size sizeWith(const QString& minutesLabel);

  // Shows these settings; for std::nullopt, the previous ones again.
  void setPreference(const Content& preference);

 protected:
  struct Kind {
    QString label;
    QString minutesLabel;
    QStringList minutes;
    QString stateKey;
    QString minutesKey;
    // What the trace calls the two actions in this row.
    const char* clickMethod;
    const char* minutesMethod;
    void (PreferenceActionDelegateProtocol::*report)(bool state, const QString& minutes);
    // Telemetry features; a null name sends none.
    QString clickFeature = {};
    QString minutesFeature = {};
  };

  NotificationRow(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate,  // not owned
                  const Kind& kind);

 private:
  void initAlertsLable();
  void initMinutes();
  void onButton();
  void onMinutesButton();

  PreferenceActionDelegateProtocol* m_actionDelegate;
  const Kind m_kind;
  Dictionary m_prefs;
  QCheckBox* m_checkbox = nullptr;
  PopUpButton* m_minutesBtn = nullptr;
};
