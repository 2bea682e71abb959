#pragma once

#include <QPalette>

#include "platform/Look.h"

// Palettes of a host application; none is one of the look's own.
inline QPalette hostPalette(LookScheme scheme) {
  switch (scheme) {
    case LookScheme::Light:
      return QPalette(QColor(0xef, 0xef, 0xef));
    case LookScheme::Dark:
      return QPalette(QColor(0x35, 0x36, 0x3a));
    case LookScheme::HighContrastLight:
      return QPalette(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::black, Qt::white,
                      Qt::white);
    case LookScheme::HighContrastDark:
      return QPalette(Qt::white, Qt::black, Qt::white, Qt::white, Qt::gray, Qt::white, Qt::white, Qt::black,
                      Qt::black);
  }
  return {};
}

inline constexpr LookScheme allSchemes[] = {LookScheme::Light, LookScheme::Dark,
                                            LookScheme::HighContrastLight, LookScheme::HighContrastDark};

inline const char* schemeName(LookScheme scheme) {
  constexpr const char* names[] = {"light", "dark", "contrast-light", "contrast-dark"};
  return names[int(scheme)];
}
