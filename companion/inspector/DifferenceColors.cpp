#include "companion/inspector/DifferenceColors.h"

#include <QApplication>

#include "platform/Look.h"

void DifferenceColors::highlightBlock(const QString& text) {
  if (m_mode == Mode::Plain || text.isEmpty()) return;
  const LookScheme scheme = lookSchemeFor(QApplication::palette());
  if (text.startsWith(u'-')) {
    setFormat(0, static_cast<int>(text.size()), lookColor(SystemColor::Red, scheme));
  } else if (text.startsWith(u'+')) {
    setFormat(0, static_cast<int>(text.size()), lookColor(SystemColor::Blue, scheme));
  }
}
