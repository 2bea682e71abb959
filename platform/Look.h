#pragma once

#include "platform/LookPalette.h"
#include "platform/PlatformExport.h"

class QStyle;
class QWidget;

// The look of our own windows. It follows the application's palette (light, dark, high contrast) and never
// changes the application itself. Main thread only.

// One style object for the process, owned by the application object.
PLATFORM_EXPORT QStyle* lookStyle();

// Gives a top-level window the look's palette and keeps it in step with the application's.
PLATFORM_EXPORT void dressWindow(QWidget* window);
