#pragma once

#include "KZPreference/panes/general/PrefGeneralView+Visible.h"
#include "KZPreference/panes/general/StartAtLoginView.h"

class MarigoldWarningView;

// The signed-in General pane: start at login, and meetings from Outlook where the site allows it.
class PrefGeneralView final : public StartAtLoginView, public PrefGeneralViewVisible {
  Q_OBJECT

 public:
  PrefGeneralView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

  // Shows a notice above the check boxes that asks the user to restart Outlook. Each call makes the window
  // taller by the notice's height.
  void showWarningView();

 private:
  void initOutlookIntegratingState();
  void initOutlookIntegratingCheckbox();
  void onOutlookIntegratingButton();
  Frame rectCheckStartingButton() const;
  Frame rectOutlookIntegrationButton() const;

  bool m_isOutlookIntegrating = true;
  bool m_isSiteEnableOutlookIntegrating = true;
  QCheckBox* m_outlookIntegratingBtn = nullptr;
  MarigoldWarningView* m_warningView = nullptr;
};
