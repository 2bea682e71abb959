#include "companion/app/Appearance.h"

#include <QApplication>
#include <QFontInfo>
#include <QHash>
#include <algorithm>

#include "platform/Look.h"
#include "platform/Text.h"

namespace {

// Offscreen there is no desktop; the size there is Qt's own.
double desktopFontSize() {
  if (QGuiApplication::platformName() == QLatin1String("offscreen")) return systemFontSize;
  return std::max<double>(systemFontSize, QFontInfo(QApplication::font()).pixelSize());
}

}  // namespace

bool applyAppearance(const QString& name, StyleChoice style) {
  static const QHash<QString, LookScheme> schemes = {{"light", LookScheme::Light},
                                                     {"dark", LookScheme::Dark},
                                                     {"high-contrast", LookScheme::HighContrastLight},
                                                     {"high-contrast-dark", LookScheme::HighContrastDark}};
  const bool isSystem = name == "system";
  if (!isSystem && !schemes.contains(name)) return false;
  const LookScheme scheme = schemes.value(name, lookSchemeFor(QApplication::palette()));
  const double size = isSystem ? desktopFontSize() : systemFontSize;
  if (style == StyleChoice::Look) QApplication::setStyle(lookStyle());
  applyScheme(scheme);
  QApplication::setFont(fontFor(FontRole::System, size));
  return true;
}

void applyScheme(LookScheme scheme) {
  QApplication::setPalette(lookPalette(scheme));
}
