#include "KZPreference/panes/general/StartAtLoginView.h"

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/layout/Resources.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"

StartAtLoginView::StartAtLoginView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {}

void StartAtLoginView::initCheckingStartState() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  m_isStartWhenComputerStarts = !store.isPlistKeyExist(KZLaunchAtLogin) || store.launchAtLogin();
}

void StartAtLoginView::initStartCheckingCheckbox(const Frame& frame, const QString& title) {
  m_startCheckingBtn = addCheckbox(this, "m_startCheckingBtn", frame, title);
  m_startCheckingBtn->setChecked(m_isStartWhenComputerStarts);
  connect(m_startCheckingBtn, &QCheckBox::clicked, this, &StartAtLoginView::onStartCheckingButton);
}

Frame StartAtLoginView::checkboxFrame(double y) const {
  // Starts at the right margin instead of the left one; both are 32 points.
  return {.x = marginAtRightEdge,
          .y = y,
          .width = frameOf(this).width - marginAtLeftEdge - marginAtRightEdge,
          .height = 16};
}

QString StartAtLoginView::getLocalizedString(const char* key) const {
  return localizedString(key);
}

void StartAtLoginView::onStartCheckingButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  m_isStartWhenComputerStarts = m_startCheckingBtn->isChecked();
  KZPlistFileHandle::sharedInstance().setLaunchAtLogin(m_isStartWhenComputerStarts);
  m_actionDelegate->checkingStartStateChanging(m_isStartWhenComputerStarts);
}
