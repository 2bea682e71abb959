#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"

#include <algorithm>

#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr double kIntegrationHeight = 198;
constexpr double kCredentialRoom = 220;

}  // namespace

QString PrefMeetingViewVisible::meetingslabel() {
  return localizedString("Meetings");
}
QString PrefMeetingViewVisible::pmrlabel() {
  return localizedString("Personal Room:");
}
QString PrefMeetingViewVisible::siplabel() {
  return localizedString("Video address:");
}
QString PrefMeetingViewVisible::dayslabel() {
  return localizedString("Number of days to show in meetings list:");
}
QString PrefMeetingViewVisible::calendarlabel() {
  return localizedString("Calendar");
}
QString PrefMeetingViewVisible::calendarIntegrationLabel() {
  return localizedString("Calendar integration");
}
QString PrefMeetingViewVisible::applyBtnTitle() {
  return localizedString("Apply");
}
QString PrefMeetingViewVisible::emaillabel() {
  return localizedString("Email:");
}
QString PrefMeetingViewVisible::passwordlabel() {
  return localizedString("Password:");
}
QString PrefMeetingViewVisible::emailPlaceHolder() {
  return localizedString("Email address");
}
QString PrefMeetingViewVisible::usernamePlaceHoder() {
  return localizedString("DOMAIN\\username or Email");
}
QString PrefMeetingViewVisible::passwordPlaceHolder() {
  return localizedString("Password");
}

double PrefMeetingViewVisible::emailPasswordLabelWidth() {
  return std::max(systemTextWidth(emaillabel()), systemTextWidth(passwordlabel())) + textPad;
}

double PrefMeetingViewVisible::applyButtonWidth() {
  return systemTextWidth(applyBtnTitle()) + 20.0 + 20.0;
}

// Does not include the gaps between label, address and link.
Size PrefMeetingViewVisible::caculateMeetingSubViewSize() {
  const Dictionary info = KZPlistFileHandle::sharedInstance().preferenceInfo().value_or(Dictionary());
  const QString pmrurl = textValue(info, QRT_Preference_PMRUrl);
  const QString sipurl = textValue(info, QRT_Preference_PMRSipUrl);
  if (pmrurl.isEmpty() && sipurl.isEmpty()) return {.width = defaultPrefsViewWidth, .height = 20};

  double labelWidth = 0;
  double urlWidth = 0;
  const auto measure = [&](const QString& label, const QString& url) {
    if (url.isEmpty()) return;
    labelWidth = std::max(labelWidth, labelTextWidth(label));
    urlWidth = std::max(urlWidth, labelTextWidth(url));
  };
  measure(pmrlabel(), pmrurl);
  measure(siplabel(), sipurl);
  const bool hasBoth = !pmrurl.isEmpty() && !sipurl.isEmpty();
  return {.width = marginAtRightEdge + labelTextWidth(localizedString("Copy")) + secondMarginAtLeftEdge +
                   (labelWidth + textPad) + (urlWidth + textPad),
          .height = hasBoth ? 72.0 : 48.0};
}

Size PrefMeetingViewVisible::caculateCalendarViewSize() {
  return {.width = systemTextWidth(dayslabel()) + textPad + secondMarginAtLeftEdge + popupButtonWidth +
                   marginAtRightEdge,
          .height = 50};
}

Size PrefMeetingViewVisible::caculateIntegrationViewSize() {
  return {.width = thirdMarginAtLeftEnd + emailPasswordLabelWidth() + marginBetweenLabelAndContent +
                   kCredentialRoom + applyButtonWidth() + marginAtRightEdge,
          .height = kIntegrationHeight};
}

Size PrefMeetingViewVisible::caculateViewSize() {
  const Size meeting = caculateMeetingSubViewSize();
  const Size calendar = caculateCalendarViewSize();
  const Size integration = caculateIntegrationViewSize();
  return {.width = std::max({meeting.width, calendar.width, integration.width}),
          .height = marginAtTopEdge + meeting.height + calendar.height + integration.height +
                    2 * marginBetweenSubViews + marginAtBottomEdge};
}
