#include "platform/Text.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <cmath>

namespace {

// A role, as a number, at a size in pixels.
using FontKind = std::pair<int, int>;

FontKind fontKind(FontRole role, double size) {
  return {static_cast<int>(role), qRound(size)};
}

// Caches fonts and text widths until the application's font changes: panes measure the same texts several
// times, and shaping a text is slow. Main thread only.
class FontTable {
 public:
  static FontTable& current() {
    FontTable& table = shared();
    if (table.m_base != QGuiApplication::font()) table.startWith(QGuiApplication::font());
    return table;
  }

  static void setTextFont(const TextFont& font) {
    shared().m_textFont = font;
    shared().startWith(QGuiApplication::font());
  }

  const QFont& font(FontKind kind) { return entry(kind).font; }
  double height(FontKind kind) { return entry(kind).height; }

  double width(const QString& text, FontKind kind) {
    const std::pair key(text.left(mostDrawnCharacters), kind);
    if (const auto known = m_widths.constFind(key); known != m_widths.cend()) return *known;
    if (m_widths.size() >= kMostTexts) m_widths.clear();
    return *m_widths.insert(key, QFontMetricsF(font(kind)).horizontalAdvance(key.first));
  }

 private:
  static constexpr qsizetype kMostTexts = 2000;

  struct Entry {
    QFont font;
    double height = 0;
  };

  static FontTable& shared() {
    static FontTable table;
    return table;
  }

  void startWith(const QFont& base) {
    m_base = base;
    m_entries.clear();
    m_widths.clear();
  }

  const Entry& entry(FontKind kind) {
    auto found = m_entries.constFind(kind);
    if (found == m_entries.constEnd()) found = m_entries.insert(kind, made(kind));
    return *found;
  }

  // The application's own family is used where the preferred one is missing.
  Entry made(FontKind kind) const {
    QFont font = m_base;
    font.setFamilies({m_textFont.family, m_base.family()});
    font.setPixelSize(qRound(kind.second * m_textFont.enlargement));
    if (kind.first == static_cast<int>(FontRole::BoldSystem)) font.setWeight(QFont::Bold);
    return {.font = font, .height = std::ceil(QFontMetricsF(font).height())};
  }

  TextFont m_textFont;
  QFont m_base;
  QHash<FontKind, Entry> m_entries;
  QHash<std::pair<QString, FontKind>, double> m_widths;
};

}  // namespace

QFont fontFor(FontRole role, double size) {
  return FontTable::current().font(fontKind(role, size));
}

void setTextFont(const TextFont& font) {
  FontTable::setTextFont(font);
}

Size sizeOfText(const QString& text, FontRole role, double size) {
  FontTable& table = FontTable::current();
  const FontKind kind = fontKind(role, size);
  return {.width = text.isEmpty() ? 0.0 : table.width(text, kind), .height = table.height(kind)};
}

void drawTextLine(QPainter* painter, const QRectF& box, Qt::Alignment alignment, const QString& text) {
  const QFontMetricsF metrics(painter->font(), painter->device());
  const double room = box.width() - metrics.horizontalAdvance(text);
  double x = box.x();
  if (alignment.testFlag(Qt::AlignRight)) x += room;
  if (alignment.testFlag(Qt::AlignHCenter)) x += room / 2;
  const double top = box.y() + (box.height() - metrics.height()) / 2;
  // The full stop of an English sentence stays at its end, also in a layout from right to left.
  painter->setLayoutDirection(Qt::LayoutDirectionAuto);
  painter->drawText(QPointF(x, std::round(top + metrics.ascent())), text);
}
