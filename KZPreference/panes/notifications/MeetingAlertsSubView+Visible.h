#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and size of the row, known before it exists.
class MeetingAlertsSubViewVisible {
 public:
  static QString meetingAlertsLabel();
  static QString minutesLabel();
  static Size caculateViewSize();
};
