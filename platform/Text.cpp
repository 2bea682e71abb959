#include "platform/Text.h"

#include <QCache>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <cmath>

namespace {

// Families in order of preference; the application's own comes last, so that no name is ever replaced
// silently.
QFont baseFont() {
  QFont font = QGuiApplication::font();
  font.setFamilies({QStringLiteral("Inter"), font.family()});
  return font;
}

// Measuring is slow where a text is very long, and panes ask for the same one several times.
constexpr qsizetype kLongText = 1000;
constexpr qsizetype kRememberedCharacters = 8'000'000;

double widthOf(const QString& text, const QFont& font) {
  if (text.size() < kLongText) return QFontMetricsF(font).horizontalAdvance(text);
  static QCache<std::pair<QString, QString>, double> widths(kRememberedCharacters);
  const std::pair key(text, font.key());
  if (const double* known = widths.object(key)) return *known;
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  widths.insert(key, new double(width), text.size());
  return width;
}

}  // namespace

QFont fontFor(FontRole role, double size) {
  QFont font = baseFont();
  font.setPixelSize(qRound(size));
  if (role == FontRole::BoldSystem) font.setWeight(QFont::Bold);
  return font;
}

Size sizeOfText(const QString& text, FontRole role, double size) {
  const QFont font = fontFor(role, size);
  return {.width = text.isEmpty() ? 0.0 : widthOf(text, font),
          .height = std::ceil(QFontMetricsF(font).height())};
}
