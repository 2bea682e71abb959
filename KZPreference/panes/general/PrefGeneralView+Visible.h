#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and size of the signed-in General pane, known before the pane exists.
class PrefGeneralViewVisible {
 public:
  static QString startCheckingString();
  static QString outlookIntegratingString();
  static Size caculatePrefGeneralViewSize();
};
