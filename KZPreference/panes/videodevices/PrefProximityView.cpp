#include "KZPreference/panes/videodevices/PrefProximityView.h"

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"

PrefProximityView::PrefProximityView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initAutodetectButton();
}

void PrefProximityView::initAutodetectButton() {
  m_autodetectBtn =
      addCheckbox(this, "m_autodetectBtn",
                  {marginAtLeftEdge, marginAtBottomEdge,
                   frameOf(this).width - marginAtLeftEdge - marginAtRightEdge, checkboxButtonHeight},
                  autodetectLabel());
  connect(m_autodetectBtn, &QCheckBox::clicked, this, &PrefProximityView::onAutodetectButton);
}

void PrefProximityView::viewDidUnhide() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  setPreference(KZPlistFileHandle::sharedInstance().videoDevice());
}

void PrefProximityView::setPreference(const Content& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  if (preference) m_prefs = *preference;
  m_autodetectBtn->setChecked(flagValue(m_prefs, kKZVideoDeviceAutodetect).value_or(true));
}

void PrefProximityView::onAutodetectButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const bool isOn = m_autodetectBtn->isChecked();
  Dictionary prefs = m_prefs;
  prefs.insert(kKZVideoDeviceAutodetect, isOn);
  m_actionDelegate->setVideoDevicePrefs(prefs);
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_PreferenceVideoDeviceAutodetect, TelemetryKey_Boolean,
      isOn ? TelemetryValue_BooleanTrue : TelemetryValue_BooleanFalse);
}
