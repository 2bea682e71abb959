#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and sizes of the signed-in Account pane, known before the pane exists. Sizes follow the stored
// profile.
class PrefAccountViewVisible {
 public:
  static QString fullNameLabel();
  static QString siteUrlLabel();
  static QString emailAddressLabel();
  static QString changeSiteButtonLabel();

  static double labelWidth();
  static double buttonWidth();
  static double contentWidth();
  static Size caculateViewSize();
};
