#pragma once

#include <QString>

#include "platform/LookPalette.h"

enum class StyleChoice { Look, Asked };  // Asked: the application keeps the style that it was started with

// Dresses the whole program in the look: a named appearance, or "system" for the desktop's own palette and,
// where that is larger, the size of its font. False for a name that is none.
[[nodiscard]] bool applyAppearance(const QString& name, StyleChoice style = StyleChoice::Look);

// Other colours; all open windows get them.
void applyScheme(LookScheme scheme);
