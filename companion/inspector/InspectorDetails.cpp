#include "companion/inspector/InspectorDetails.h"

#include <QEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "companion/inspector/DifferenceColors.h"
#include "platform/Text.h"

namespace {

constexpr int kDetailsPixels = 12;

QFont detailsFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(kDetailsPixels);
  return font;
}

}  // namespace

InspectorDetails::InspectorDetails()
    : m_title(new QLabel), m_text(new QPlainTextEdit), m_colors(new DifferenceColors(m_text->document())) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  column->addWidget(m_title);
  column->addWidget(m_text, 1);
  m_title->setTextFormat(Qt::PlainText);
  m_title->setFont(fontFor(FontRole::BoldSystem, systemFontSize));
  m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  m_text->setReadOnly(true);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_text->setTabChangesFocus(true);
  m_text->setFont(detailsFont());
  m_text->setPlaceholderText(QStringLiteral("Choose a row to see its whole content."));
  m_text->setAccessibleName(QStringLiteral("Whole content"));
  show(nullptr);
}

void InspectorDetails::show(const InspectorLog::Event& event) {
  if (event && event == m_event) return;
  m_event = event;
  m_title->setText(event ? event->title() : QStringLiteral("Details"));
  m_title->setToolTip(event ? event->title() : QString());
  const bool isDifference = event && event->kind == InspectorEvent::Kind::StoreWrite;
  m_colors->setMode(isDifference ? DifferenceColors::Mode::Difference : DifferenceColors::Mode::Plain);
  m_text->setPlainText(event ? event->wholeContent() : QString());
}

void InspectorDetails::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) m_colors->rehighlight();
}
