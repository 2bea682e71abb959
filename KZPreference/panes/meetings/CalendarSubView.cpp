#include "KZPreference/panes/meetings/CalendarSubView.h"

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"

CalendarSubView::CalendarSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initCalendarLebel();
  initDays();
}

void CalendarSubView::initCalendarLebel() {
  const QString title = PrefMeetingViewVisible::calendarlabel();
  const Size size = titleTextSize(title);
  addTitle(this, "m_calendarTxt",
           {marginAtLeftEdge, frameOf(this).height - size.height, size.width + textPad, size.height}, title);
}

void CalendarSubView::initDays() {
  const QString label = PrefMeetingViewVisible::dayslabel();
  const Size size = labelTextSize(label);
  StaticText* text =
      addLabel(this, "m_daysTxt", {secondMarginAtLeftEdge, 2, size.width + textPad, size.height}, label);
  m_daysBtn =
      addPopUpButton(this, "m_daysBtn", {secondMarginAtLeftEdge + size.width + 8, 0, popupButtonWidth, 20},
                     {QStringLiteral("1"), QStringLiteral("7"), QStringLiteral("14")});
  setAccessibleLabel(m_daysBtn, text);
  connect(m_daysBtn, &PopUpButton::chosen, this, &CalendarSubView::onDaysButton);
}

void CalendarSubView::setCalendarPreference(const Dictionary& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  const QString days = countValue(preference, kKZCalendarIntegrationDays);
  m_daysBtn->setTitle(days.isNull() ? kKZCalendarIntegrationDaysDefault : days);
}

void CalendarSubView::onDaysButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const QString days = m_daysBtn->title();
  m_actionDelegate->setCalendarDays(days);
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_SelectCalendarListDays, TelemetryKey_CalendarListDaysCount, days);
}
