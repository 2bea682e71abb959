#include "platform/Text.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <cmath>

namespace {

// Families in order of preference; the application's own comes last, so that no name is ever replaced silently.
QFont baseFont() {
  QFont font = QGuiApplication::font();
  font.setFamilies({QStringLiteral("Inter"), font.family()});
  return font;
}

}  // namespace

QFont fontFor(FontRole role, double size) {
  QFont font = baseFont();
  font.setPixelSize(qRound(size));
  if (role == FontRole::BoldSystem) font.setWeight(QFont::Bold);
  return font;
}

Size sizeOfText(const QString& text, FontRole role, double size) {
  const QFontMetricsF metrics(fontFor(role, size));
  return {.width = text.isEmpty() ? 0.0 : metrics.horizontalAdvance(text), .height = std::ceil(metrics.height())};
}
