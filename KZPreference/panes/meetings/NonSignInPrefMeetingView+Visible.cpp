#include "KZPreference/panes/meetings/NonSignInPrefMeetingView+Visible.h"

#include <algorithm>

#include "KZPreference/layout/PrefsViewDefine.h"

namespace {

constexpr double kGuestIntegrationHeight = 172;

}  // namespace

Size NonSignInPrefMeetingViewVisible::caculateIntegrationViewSize() {
  return {.width = PrefMeetingViewVisible::caculateIntegrationViewSize().width,
          .height = kGuestIntegrationHeight};
}

Size NonSignInPrefMeetingViewVisible::caculateViewSize() {
  const Size calendar = caculateCalendarViewSize();
  const Size integration = caculateIntegrationViewSize();
  return {.width = std::max(calendar.width, integration.width),
          .height = marginAtTopEdge + calendar.height + integration.height + marginBetweenSubViews +
                    marginAtBottomEdge};
}
