#pragma once

#include "platform/LookPalette.h"
#include "platform/PlatformExport.h"

class QStyle;
class QWidget;

// The look of our own windows. It follows the application's palette (light, dark, high contrast) and never
// changes the application itself. Main thread only.

// One style object for the process, owned by the application object.
PLATFORM_EXPORT QStyle* lookStyle();

// Gives the view and all views in it the look's style.
void setLookStyle(QWidget* view);

// Gives a top-level window the look, and a palette that follows the application's.
void setWindowLook(QWidget* window);
