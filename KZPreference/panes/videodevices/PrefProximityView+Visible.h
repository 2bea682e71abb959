#pragma once

#include <QString>

#include "platform/Frame.h"

// Text and size of the Video devices pane, known before the pane exists.
class PrefProximityViewVisible {
 public:
  static QString autodetectLabel();
  static Size caculateViewSize();
};
