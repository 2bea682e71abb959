#pragma once

#include "platform/PlatformExport.h"

class QWidget;

// The tab order, where it differs from the window's chain. Main thread only.

// Tab in `from` goes to `to` while `to` is visible and enabled, else along the window's chain.
PLATFORM_EXPORT void setNextKeyView(QWidget* from, QWidget* to);
PLATFORM_EXPORT QWidget* nextKeyViewOf(const QWidget* view);  // nullptr when none was set
