#pragma once

#include <QColor>

#include "platform/LookPalette.h"

// What the style draws with beyond the palette's roles.
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
