#include "KZPreference/panes/meetings/NonSignInCalendarIntegrationSubView.h"

#include <QLineEdit>
#include <QRadioButton>

#include "KZPreference/layout/Resources.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"

NonSignInCalendarIntegrationSubView::NonSignInCalendarIntegrationSubView(
    const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : CalendarIntegrationGroup(frame, actionDelegate) {
  initControls();
  m_emailInputTxt->setEnabled(true);
}

void NonSignInCalendarIntegrationSubView::initRadioButtons() {
  m_outlookRadioBtn = addRadioButton("m_outlookRadioBtn", 0, localizedString("Microsoft Outlook"));
  m_outlookRadioBtn->setChecked(true);
  connect(m_outlookRadioBtn, &QRadioButton::clicked, this,
          &NonSignInCalendarIntegrationSubView::onOutlookButton);
}

void NonSignInCalendarIntegrationSubView::setCalendarPreference(const Dictionary& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  const QString source = textValue(preference, kKZCalendarIntegrationSource);
  const bool isOutlook = isEqualText(source, kKZCalendarIntegrationSourceOutlook);
  isOutlook ? enableOutlook() : updateByAppliedState();
}

void NonSignInCalendarIntegrationSubView::reportSourceOnClose(bool isApplied) {
  if (m_isOpeningByDashboard && isApplied) {
    m_actionDelegate->setCalendarIntegrationSource(kKZCalendarIntegrationSourceOutlook);
    m_actionDelegate->calendarIntergrationSourceChanged();
  }
  m_isOpeningByDashboard = false;
}
