#pragma once

#include <QString>

#include "platform/Frame.h"

// Texts and sizes of the guest's Account pane, known before the pane exists.
class NonSignInPrefAccountViewVisible {
 public:
  static constexpr double fieldWidth = 260;

  static QString accountLabel();
  static QString fullNameLabel();
  static QString emailAddressLabel();
  static QString editButtonLabel();
  static QString applyButtonLabel();

  static double labelWidth();
  static double buttonWidthWithTitle(const QString& title);
  static double contentWidth();
  static Size accountLabelSize();
  static Size caculateViewSize();
};
