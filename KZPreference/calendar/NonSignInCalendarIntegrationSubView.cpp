#include "KZPreference/calendar/NonSignInCalendarIntegrationSubView.h"

#include <QLineEdit>
#include <QRadioButton>

#include "KZPreference/layout/Localization.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"

NonSignInCalendarIntegrationSubView::NonSignInCalendarIntegrationSubView(
    const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : CalendarIntegrationGroup(frame, actionDelegate) {
  initControls();
  m_emailInputTxt->setEnabled(true);
}

void NonSignInCalendarIntegrationSubView::initRadioButtons() {
  m_outlookRadioBtn =
      addRadioButton(QStringLiteral("m_outlookRadioBtn"), 0, localizedString("Microsoft Outlook"));
  m_outlookRadioBtn->setChecked(true);
  connect(m_outlookRadioBtn, &QRadioButton::clicked, this,
          &NonSignInCalendarIntegrationSubView::onOutlookButton);
}

void NonSignInCalendarIntegrationSubView::setCalendarPreference(const Dictionary& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  updateByAppliedState();
  const QString source = textValue(preference, kKZCalendarIntegrationSource);
  if (isEqualText(source, kKZCalendarIntegrationSourceOutlook)) enableOutlook();
}

void NonSignInCalendarIntegrationSubView::reportSourceOnClose() {
  if (m_isOpeningByDashboard && m_assist.isOLAccountApplied()) {
    m_actionDelegate->setCalendarIntegrationSource(kKZCalendarIntegrationSourceOutlook);
    m_actionDelegate->calendarIntergrationSourceChanged();
  }
  m_isOpeningByDashboard = false;
}
