#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and size of the row, known before it exists.
class SnoozeSubViewVisible {
 public:
  static QString snoozeLabel();
  static QString minutesLabel();
  static Size caculateViewSize();
};
