#pragma once

#include "platform/PlatformExport.h"

// From now on assistive technology is told that something was typed into a field that hides its text, but not
// what: the toolkit tells the characters. For all fields of the process. Main thread only.
PLATFORM_EXPORT void maskSecretText();
