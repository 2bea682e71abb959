#include "platform/LookPalette.h"

namespace {

struct LookRoles {
  QRgb window;
  QRgb text;
  QRgb base;
  QRgb button;
  QRgb buttonText;
  QRgb separator;
  QRgb placeholder;
  QRgb disabledText;
  QRgb accent;
  QRgb onAccent;  // texts; selected ones too
  QRgb link;
  QRgb linkVisited;
  QRgb notice;
  QRgb noticeText;
  QRgb disabledAccent;
};

constexpr LookRoles kLightRoles{.window = 0xf5f5f7,
                                .text = 0x1d1d1f,
                                .base = 0xffffff,
                                .button = 0xfcfcfd,
                                .buttonText = 0x1d1d1f,
                                .separator = 0xd6d6d8,
                                .placeholder = 0x737378,
                                .disabledText = 0x9a9a9f,
                                .accent = 0x1473e6,
                                .onAccent = 0xffffff,
                                .link = 0x0b5fd1,
                                .linkVisited = 0x0b5fd1,
                                .notice = 0xfff2cf,
                                .noticeText = 0x1d1d1f,
                                .disabledAccent = 0xd2d2d6};

constexpr LookRoles kDarkRoles{.window = 0x2b2c30,
                               .text = 0xf2f2f4,
                               .base = 0x1f2023,
                               .button = 0x57595e,
                               .buttonText = 0xffffff,
                               .separator = 0x47484b,
                               .placeholder = 0x919298,
                               .disabledText = 0x7d7f85,
                               .accent = 0x3b8cff,
                               .onAccent = 0x00122b,
                               .link = 0x5aa2ff,
                               .linkVisited = 0x5aa2ff,
                               .notice = 0x4b3d16,
                               .noticeText = 0xfff6dd,
                               .disabledAccent = 0x4a4c51};

constexpr LookRoles kContrastLightRoles{.window = 0xffffff,
                                        .text = 0x000000,
                                        .base = 0xffffff,
                                        .button = 0xffffff,
                                        .buttonText = 0x000000,
                                        .separator = 0x000000,
                                        .placeholder = 0x595959,
                                        .disabledText = 0x595959,
                                        .accent = 0x0000c8,
                                        .onAccent = 0xffffff,
                                        .link = 0x0000c8,
                                        .linkVisited = 0x0000c8,
                                        .notice = 0xffffff,
                                        .noticeText = 0x000000,
                                        .disabledAccent = 0xffffff};

constexpr LookRoles kContrastDarkRoles{.window = 0x000000,
                                       .text = 0xffffff,
                                       .base = 0x000000,
                                       .button = 0x000000,
                                       .buttonText = 0xffffff,
                                       .separator = 0xffffff,
                                       .placeholder = 0xa6a6a6,
                                       .disabledText = 0xa6a6a6,
                                       .accent = 0x1aebff,
                                       .onAccent = 0x000000,
                                       .link = 0x1aebff,
                                       .linkVisited = 0x1aebff,
                                       .notice = 0x000000,
                                       .noticeText = 0xffffff,
                                       .disabledAccent = 0x000000};

QPalette paletteFromRoles(const LookRoles& roles) {
  QPalette palette;
  const auto set = [&palette](QPalette::ColorRole role, QRgb color) {
    palette.setColor(QPalette::All, role, QColor::fromRgb(color));
  };
  set(QPalette::Window, roles.window);
  set(QPalette::WindowText, roles.text);
  set(QPalette::Base, roles.base);
  set(QPalette::AlternateBase, roles.window);
  set(QPalette::Text, roles.text);
  set(QPalette::Button, roles.button);
  set(QPalette::ButtonText, roles.buttonText);
  set(QPalette::BrightText, roles.onAccent);
  set(QPalette::PlaceholderText, roles.placeholder);
  set(QPalette::Highlight, roles.accent);
  set(QPalette::HighlightedText, roles.onAccent);
  set(QPalette::Link, roles.link);
  set(QPalette::LinkVisited, roles.linkVisited);
  set(QPalette::ToolTipBase, roles.notice);
  set(QPalette::ToolTipText, roles.noticeText);
  set(QPalette::Mid, roles.separator);
  set(QPalette::Midlight, roles.window);
  set(QPalette::Light, roles.base);
  set(QPalette::Dark, roles.placeholder);
  set(QPalette::Shadow, roles.text);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                         QPalette::Link, QPalette::PlaceholderText}) {
    palette.setColor(QPalette::Disabled, role, QColor::fromRgb(roles.disabledText));
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(roles.disabledAccent));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor::fromRgb(roles.disabledText));
  return palette;
}

// The relative luminance is not needed here: only which of two colours is the darker one.
bool isDarker(const QColor& left, const QColor& right) {
  return qGray(left.rgb()) < qGray(right.rgb());
}

bool isPure(const QPalette& palette, QPalette::ColorRole back, QPalette::ColorRole fore, QRgb backColor) {
  const QRgb foreColor = backColor == 0xff000000 ? 0xffffffff : 0xff000000;
  return palette.color(QPalette::Active, back).rgb() == backColor &&
         palette.color(QPalette::Active, fore).rgb() == foreColor;
}

bool isHighContrast(const QPalette& palette) {
  const QRgb window = palette.color(QPalette::Active, QPalette::Window).rgb();
  if (window != 0xff000000 && window != 0xffffffff) return false;
  return isPure(palette, QPalette::Window, QPalette::WindowText, window) &&
         isPure(palette, QPalette::Base, QPalette::Text, window) &&
         isPure(palette, QPalette::Button, QPalette::ButtonText, window);
}

}  // namespace

LookScheme lookSchemeFor(const QPalette& palette) {
  const bool isDark = isDarker(palette.color(QPalette::Active, QPalette::Window),
                               palette.color(QPalette::Active, QPalette::WindowText));
  if (isHighContrast(palette)) return isDark ? LookScheme::HighContrastDark : LookScheme::HighContrastLight;
  return isDark ? LookScheme::Dark : LookScheme::Light;
}

const QPalette& lookPalette(LookScheme scheme) {
  static const QPalette light = paletteFromRoles(kLightRoles);
  static const QPalette dark = paletteFromRoles(kDarkRoles);
  static const QPalette contrastLight = paletteFromRoles(kContrastLightRoles);
  static const QPalette contrastDark = paletteFromRoles(kContrastDarkRoles);
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

QColor lookColor(SystemColor color, LookScheme scheme) {
  if (color == SystemColor::Text) return lookPalette(scheme).color(QPalette::WindowText);
  if (color == SystemColor::Blue) return lookPalette(scheme).color(QPalette::Link);
  switch (scheme) {
    case LookScheme::Light:
      return QColor::fromRgb(0xd70015);
    case LookScheme::Dark:
      return QColor::fromRgb(0xff6961);
    case LookScheme::HighContrastLight:
      return QColor::fromRgb(0xb00000);
    case LookScheme::HighContrastDark:
      return QColor::fromRgb(0xff9b94);
  }
  return {};
}
