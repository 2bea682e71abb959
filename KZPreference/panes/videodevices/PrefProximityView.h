#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/panes/videodevices/PrefProximityView+Visible.h"
#include "platform/View.h"

class QCheckBox;

// The Video devices pane: automatic discovery of nearby devices. It reads the store each time it is shown.
class PrefProximityView final : public View, public PrefProximityViewVisible {
  Q_OBJECT

 public:
  PrefProximityView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  // Shows these settings; for std::nullopt, the previous ones again.
  void setPreference(const Content& preference);

 protected:
  void viewDidUnhide() override;

 private:
  void initAutodetectButton();
  void onAutodetectButton();

  PreferenceActionDelegateProtocol* m_actionDelegate;
  Dictionary m_prefs;
  QCheckBox* m_autodetectBtn = nullptr;
};
