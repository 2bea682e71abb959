#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and sizes of the signed-in Meetings pane and of its groups, known before they exist. The
// personal-room group follows the stored addresses.
class PrefMeetingViewVisible {
 public:
  static QString meetingslabel();
  static QString pmrlabel();
  static QString siplabel();
  static QString dayslabel();
  static QString calendarlabel();
  static QString calendarIntegrationLabel();
  static QString applyBtnTitle();
  static QString emaillabel();
  static QString passwordlabel();
  static QString emailPlaceHolder();
  static QString usernamePlaceHoder();
  static QString passwordPlaceHolder();

  static double emailPasswordLabelWidth();
  static double applyButtonWidth();
  static Size caculateMeetingSubViewSize();
  static Size caculateCalendarViewSize();
  static Size caculateIntegrationViewSize();
  static Size caculateViewSize();
};
