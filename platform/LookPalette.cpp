#include "platform/LookPalette.h"

#include <array>

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
                                .notice = 0xfff2cf,
                                .noticeText = 0x1d1d1f,
                                .disabledAccent = 0xd2d2d6};

constexpr LookRoles kDarkRoles{.window = 0x2b2c30,
                               .text = 0xf2f2f4,
                               .base = 0x1f2023,
                               .button = 0x414348,
                               .buttonText = 0xffffff,
                               .separator = 0x47484b,
                               .placeholder = 0x919298,
                               .disabledText = 0x7d7f85,
                               .accent = 0x3b8cff,
                               .onAccent = 0x00122b,
                               .link = 0x5aa2ff,
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
  set(QPalette::LinkVisited, roles.link);
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

QColor rgb(QRgb value) {
  return QColor::fromRgb(value);
}

LookColors lightLookColors() {
  return {.faceTop = rgb(0xffffff),
          .faceBottom = rgb(0xf7f7f8),
          .facePressed = rgb(0xe6e6e9),
          .border = rgb(0x7f7f84),
          .borderHover = rgb(0x68686d),
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
          .scrollThumb = rgb(0x7f7f84),
          .scrollThumbHover = rgb(0x68686d),
          .menu = rgb(0xffffff)};
}

LookColors darkLookColors() {
  return {.faceTop = rgb(0x44464b),
          .faceBottom = rgb(0x3e4045),
          .facePressed = rgb(0x55575d),
          .border = rgb(0x818389),
          .borderHover = rgb(0xa3a5ab),
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
          .scrollThumb = rgb(0x818389),
          .scrollThumbHover = rgb(0xa3a5ab),
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

template <typename T>
const T& forScheme(const std::array<T, 4>& values, LookScheme scheme) {
  return values.at(static_cast<std::size_t>(scheme));
}

}  // namespace

LookScheme lookSchemeFor(const QPalette& palette) {
  const bool isDark = isDarker(palette.color(QPalette::Active, QPalette::Window),
                               palette.color(QPalette::Active, QPalette::WindowText));
  if (isHighContrast(palette)) return isDark ? LookScheme::HighContrastDark : LookScheme::HighContrastLight;
  return isDark ? LookScheme::Dark : LookScheme::Light;
}

const QPalette& lookPalette(LookScheme scheme) {
  static const std::array palettes{paletteFromRoles(kLightRoles), paletteFromRoles(kDarkRoles),
                                   paletteFromRoles(kContrastLightRoles),
                                   paletteFromRoles(kContrastDarkRoles)};
  return forScheme(palettes, scheme);
}

QColor lookColor(SystemColor color, LookScheme scheme) {
  static constexpr std::array<QRgb, 4> reds{0xffd70015, 0xffff6961, 0xffb00000, 0xffff9b94};
  if (color == SystemColor::Red) return QColor::fromRgb(forScheme(reds, scheme));
  return lookPalette(scheme).color(color == SystemColor::Blue ? QPalette::Link : QPalette::WindowText);
}

const LookColors& lookColorsFor(LookScheme scheme) {
  static const std::array colors{
      lightLookColors(), darkLookColors(),
      contrastLookColors(Qt::white, Qt::black, rgb(0x0000c8), rgb(0xd0d0ff), rgb(0x595959)),
      contrastLookColors(Qt::black, Qt::white, rgb(0x1aebff), rgb(0x00414a), rgb(0xa6a6a6))};
  return forScheme(colors, scheme);
}
