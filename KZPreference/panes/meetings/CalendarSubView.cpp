#include "KZPreference/panes/meetings/CalendarSubView.h"

#include "KZPreference/contract/PreferenceTelemetry.h"
#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PrefMeetingView+Visible.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "platform/FrameLayout.h"

CalendarSubView::CalendarSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initCalendarLebel();
  initDays();
}

void CalendarSubView::initCalendarLebel() {
  const QString title = PrefMeetingViewVisible::calendarlabel();
  const Size size = sizeOfText(title, FontRole::BoldSystem, boldLabelFontSize);
  addStaticText(this, {.name = QStringLiteral("m_calendarTxt"),
                       .frame = {marginAtLeftEdge, frameOf(this).height - size.height, size.width + textPad,
                                 size.height},
                       .text = title,
                       .role = FontRole::BoldSystem,
                       .size = boldLabelFontSize});
}

void CalendarSubView::initDays() {
  const QString label = PrefMeetingViewVisible::dayslabel();
  const Size size = sizeOfText(label, FontRole::Label, labelFontSize);
  const Frame frame{secondMarginAtLeftEdge, 2, size.width + textPad, size.height};
  StaticText* text = addStaticText(this, {.name = QStringLiteral("m_daysTxt"),
                                          .frame = frame,
                                          .text = label,
                                          .role = FontRole::Label,
                                          .size = labelFontSize});
  m_daysBtn = addPopUpButton(this, QStringLiteral("m_daysBtn"),
                             {secondMarginAtLeftEdge + size.width + 8, 0, popupButtonWidth, 20},
                             {QStringLiteral("1"), QStringLiteral("7"), QStringLiteral("14")});
  m_daysBtn->setAccessibleName(label);
  // A screen reader may take the chosen title for the name; then the label is found through this.
  text->setBuddy(m_daysBtn);
  connect(m_daysBtn, &PopUpButton::chosen, this, &CalendarSubView::onDaysButton);
}

void CalendarSubView::setCalendarPreference(const Dictionary& preference) {
  const QString days = textValue(preference, kKZCalendarIntegrationDays);
  m_daysBtn->setTitle(days.isNull() ? kKZCalendarIntegrationDaysDefault : days);
}

void CalendarSubView::onDaysButton() {
  const QString days = m_daysBtn->title();
  m_actionDelegate->setCalendarDays(days);
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_SelectCalendarListDays, TelemetryKey_CalendarListDaysCount, days);
}
