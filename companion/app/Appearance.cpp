#include "companion/app/Appearance.h"

#include <QApplication>
#include <QHash>

#include "platform/Look.h"
#include "platform/Text.h"

bool applyAppearance(const QString& name) {
  static const QHash<QString, LookScheme> schemes = {{"light", LookScheme::Light},
                                                     {"dark", LookScheme::Dark},
                                                     {"high-contrast", LookScheme::HighContrastLight},
                                                     {"high-contrast-dark", LookScheme::HighContrastDark}};
  if (name != "system" && !schemes.contains(name)) return false;
  const LookScheme scheme = schemes.value(name, lookSchemeFor(QApplication::palette()));
  QApplication::setStyle(lookStyle());
  QApplication::setPalette(lookPalette(scheme));
  QApplication::setFont(fontFor(FontRole::System, systemFontSize));
  return true;
}
