#include "KZPreference/panes/general/PrefGeneralView.h"

#include "KZPreference/layout/Controls.h"
#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"

PrefGeneralView::PrefGeneralView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : StartAtLoginView(frame, actionDelegate) {
  initCheckingStartState();
  initOutlookIntegratingState();
  initStartCheckingCheckbox(rectCheckStartingButton(), startCheckingString());
  initOutlookIntegratingCheckbox();
}

void PrefGeneralView::initOutlookIntegratingState() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_isSiteEnableOutlookIntegrating = KZApplicationHelper::sharedInstance().siteEnableOutlook();
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  m_isOutlookIntegrating = !store.isPlistKeyExist(KZEnableOutlookKZPlugin) || store.enableOutlookKZPlugin();
}

void PrefGeneralView::initOutlookIntegratingCheckbox() {
  m_outlookIntegratingBtn = addCheckbox(this, "m_outlookIntegratingBtn", rectOutlookIntegrationButton(),
                                        outlookIntegratingString());
  // The stored choice is not changed when the site does not allow it.
  m_outlookIntegratingBtn->setChecked(m_isOutlookIntegrating && m_isSiteEnableOutlookIntegrating);
  m_outlookIntegratingBtn->setEnabled(m_isSiteEnableOutlookIntegrating);
  connect(m_outlookIntegratingBtn, &QCheckBox::clicked, this, &PrefGeneralView::onOutlookIntegratingButton);
}

Frame PrefGeneralView::rectCheckStartingButton() const {
  return checkboxFrame(marginAtBottomEdge + 24);
}
Frame PrefGeneralView::rectOutlookIntegrationButton() const {
  return checkboxFrame(marginAtBottomEdge);
}

void PrefGeneralView::onOutlookIntegratingButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_isOutlookIntegrating = m_outlookIntegratingBtn->isChecked();
  KZPlistFileHandle::sharedInstance().setEnableOutlookKZPlugin(m_isOutlookIntegrating);
  m_actionDelegate->outlookIntegratingStateChange(m_isOutlookIntegrating);
}

void PrefGeneralView::showWarningView() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (!m_warningView) {
    m_warningView = new MarigoldWarningView;
    m_warningView->setObjectName(QStringLiteral("m_warningView"));
    m_warningView->setIsInfo(true);
    m_warningView->setWarningText(
        getLocalizedString("Your setting changes will take effect after you restart Microsoft Outlook."));
    addSubview(this, m_warningView, {});  // it takes its size from its text
  }
  m_warningView->setVisible(true);
  Frame windowFrame = frameOf(window());
  windowFrame.height += m_warningView->height();
  setFrame(window(), windowFrame);
}
