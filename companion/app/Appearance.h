#pragma once

#include <QString>

// Dresses the whole program in the look: a named appearance, or "system" for the desktop's own palette.
// False for a name that is none.
[[nodiscard]] bool applyAppearance(const QString& name);
