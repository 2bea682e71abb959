#pragma once

#include <QColor>
#include <QPalette>

#include "platform/PlatformExport.h"

// The colours of our own windows. Main thread only.

// In the order of the tables in LookPalette.cpp.
enum class LookScheme { Light, Dark, HighContrastLight, HighContrastDark };

// Colours that carry a meaning; drawn legibly in every scheme.
enum class SystemColor { Text, Red, Blue };

// Dark when the window is darker than its text; high contrast when window, fields and buttons are all pure
// black under pure white texts, or all pure white under pure black ones (one stark pair alone is an ordinary
// palette).
PLATFORM_EXPORT LookScheme lookSchemeFor(const QPalette& palette);
PLATFORM_EXPORT const QPalette& lookPalette(LookScheme scheme);
PLATFORM_EXPORT QColor lookColor(SystemColor color, LookScheme scheme);

// The style's colours that have no role in the palette.
struct LookColors {
  QColor faceTop;  // of push buttons and pop-ups
  QColor faceBottom;
  QColor facePressed;
  QColor border;
  QColor borderHover;
  QColor disabledBorder;
  QColor toolbar;
  QColor toolbarLine;
  QColor tile;  // of the selected toolbar item
  QColor tileHover;
  QColor tilePressed;
  QColor tileBorder;
  QColor toolbarText;
  QColor accentPressed;
  QColor glyph;  // on the accent
  QColor disabledGlyph;
  QColor scrollThumb;
  QColor scrollThumbHover;
  QColor menu;
  qreal focusWidth = 2;
};

PLATFORM_EXPORT const LookColors& lookColorsFor(LookScheme scheme);
