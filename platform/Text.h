#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"

class QPainter;

// Texts are measured in the fonts that they are drawn in.
enum class FontRole { Label, System, BoldSystem };

inline constexpr double systemFontSize = 13;  // the platform's default size, in points

PLATFORM_EXPORT QFont fontFor(FontRole role, double size);

// The family that texts are drawn in where it is installed, and how much larger than named.
struct TextFont {
  QString family = QStringLiteral("Inter");
  double enlargement = 1;
};

// For what is created from now on. Tests of the layout use other fonts than the usual one.
PLATFORM_EXPORT void setTextFont(const TextFont& font);

// More than any screen shows of one line; measuring and drawing the rest would only take time.
inline constexpr qsizetype mostDrawnCharacters = 4000;

// Width as measured, of the characters that are drawn; height rounded up. An empty text has no width.
PLATFORM_EXPORT Size sizeOfText(const QString& text, FontRole role, double size);

// One line in the painter's font and pen, in the middle of the box. A fallback font for characters that the
// painter's font lacks does not move the line.
PLATFORM_EXPORT void drawTextLine(QPainter* painter, const QRectF& box, Qt::Alignment alignment,
                                  const QString& text);
