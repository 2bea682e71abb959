#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and size of the row, known before it exists.
class MeetingCardSubViewVisible {
 public:
  static QString meetingCardLabel();
  static QString minutesLabel();
  static Size caculateViewSize();
};
