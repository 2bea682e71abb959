#include "KZPreference/panes/general/PrefGeneralView.h"

#include "KZPreference/layout/Controls.h"
#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"

PrefGeneralView::PrefGeneralView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : StartAtLoginView(frame, actionDelegate) {
  initCheckingStartState();
  initOutlookIntegratingState();
  initStartCheckingCheckbox(rectCheckStartingButton(), startCheckingString());
  initOutlookIntegratingCheckbox();
}

void PrefGeneralView::initOutlookIntegratingState() {
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
  m_isOutlookIntegrating = m_outlookIntegratingBtn->isChecked();
  KZPlistFileHandle::sharedInstance().setEnableOutlookKZPlugin(m_isOutlookIntegrating);
  m_actionDelegate->outlookIntegratingStateChange(m_isOutlookIntegrating);
}

void PrefGeneralView::showWarningView() {
  if (!m_warningView) addWarningView();
  m_warningView->setVisible(true);
  Frame windowFrame = frameOf(window());
  windowFrame.height += m_warningView->height();
  setFrame(window(), windowFrame);
}

void PrefGeneralView::addWarningView() {
  m_warningView = new MarigoldWarningView;
  m_warningView->setObjectName(QStringLiteral("m_warningView"));
  m_warningView->setIsInfo(true);
  m_warningView->setWarningText(
      getLocalizedString("Your setting changes will take effect after you restart Microsoft Outlook."));
  // The pane grows downwards by the notice's height, so that the notice is above the check boxes.
  Frame pane = frameOf(this);
  const double height = m_warningView->heightForWidth(int(pane.width));
  addSubview(this, m_warningView, {0, pane.height, pane.width, height});
  pane.y -= height;
  pane.height += height;
  setFrame(this, pane);
}
