#include "platform/LookColors.h"

namespace {

QColor rgb(QRgb value) {
  return QColor::fromRgb(value);
}

LookColors lightLookColors() {
  return {.faceTop = rgb(0xffffff),
          .faceBottom = rgb(0xf7f7f8),
          .facePressed = rgb(0xe6e6e9),
          .border = rgb(0xc2c2c6),
          .borderHover = rgb(0xa3a3a8),
          .disabledBorder = rgb(0xd4d4d8),
          .toolbar = rgb(0xffffff),
          .toolbarLine = rgb(0xe1e1e3),
          .tile = rgb(0xececee),
          .tileHover = rgb(0xf4f4f5),
          .tilePressed = rgb(0xdedee1),
          .tileBorder = QColor(Qt::transparent),
          .toolbarText = rgb(0x1d1d1f),
          .accentPressed = rgb(0x0f59b4),
          .glyph = rgb(0xffffff),
          .disabledGlyph = rgb(0xa6a6ab),
          .scrollThumb = rgb(0xb9b9bd),
          .scrollThumbHover = rgb(0x8e8e93),
          .menu = rgb(0xffffff)};
}

LookColors darkLookColors() {
  return {.faceTop = rgb(0x5c5e64),
          .faceBottom = rgb(0x54565b),
          .facePressed = rgb(0x6e7077),
          .border = rgb(0x53555a),
          .borderHover = rgb(0x85878d),
          .disabledBorder = rgb(0x45474c),
          .toolbar = rgb(0x1f2023),
          .toolbarLine = rgb(0x37383b),
          .tile = rgb(0x323337),
          .tileHover = rgb(0x292a2e),
          .tilePressed = rgb(0x3f4046),
          .tileBorder = QColor(Qt::transparent),
          .toolbarText = rgb(0xf2f2f4),
          .accentPressed = rgb(0x2a6fd6),
          .glyph = rgb(0xffffff),
          .disabledGlyph = rgb(0x77797f),
          .scrollThumb = rgb(0x5f6167),
          .scrollThumbHover = rgb(0x8b8d94),
          .menu = rgb(0x36373b)};
}

LookColors contrastLookColors(const QColor& back, const QColor& fore, const QColor& accent,
                              const QColor& pressed, const QColor& disabled) {
  return {.faceTop = back,
          .faceBottom = back,
          .facePressed = pressed,
          .border = fore,
          .borderHover = accent,
          .disabledBorder = disabled,
          .toolbar = back,
          .toolbarLine = fore,
          .tile = back,
          .tileHover = back,
          .tilePressed = pressed,
          .tileBorder = accent,
          .toolbarText = fore,
          .accentPressed = fore,
          .glyph = back,
          .disabledGlyph = disabled,
          .scrollThumb = fore,
          .scrollThumbHover = accent,
          .menu = back,
          .focusWidth = 3};
}

}  // namespace

const LookColors& lookColorsFor(LookScheme scheme) {
  static const LookColors light = lightLookColors();
  static const LookColors dark = darkLookColors();
  static const LookColors contrastLight =
      contrastLookColors(Qt::white, Qt::black, rgb(0x0000c8), rgb(0xd0d0ff), rgb(0x595959));
  static const LookColors contrastDark =
      contrastLookColors(Qt::black, Qt::white, rgb(0x1aebff), rgb(0x00414a), rgb(0xa6a6a6));
  switch (scheme) {
    case LookScheme::Light:
      return light;
    case LookScheme::Dark:
      return dark;
    case LookScheme::HighContrastLight:
      return contrastLight;
    case LookScheme::HighContrastDark:
      return contrastDark;
  }
  return light;
}
