#pragma once

#include <QPalette>
#include <algorithm>
#include <cmath>

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

inline double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// From 1 to 21.
inline double contrast(const QColor& left, const QColor& right) {
  const auto [low, high] = std::minmax({luminance(left), luminance(right)});
  return (high + 0.05) / (low + 0.05);
}
