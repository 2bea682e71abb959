#include "companion/inspector/InspectorDetails.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSyntaxHighlighter>
#include <QVBoxLayout>

#include "platform/Look.h"
#include "platform/Text.h"

namespace {

constexpr int kDetailsPixels = 12;

// Colours the lines of a difference; their signs say the same without colours.
class DifferenceColors final : public QSyntaxHighlighter {
 public:
  using QSyntaxHighlighter::QSyntaxHighlighter;

 protected:
  void highlightBlock(const QString& text) override {
    const LookScheme scheme = lookSchemeFor(QApplication::palette());
    const SystemColor color = text.startsWith(u'-') ? SystemColor::Red : SystemColor::Blue;
    setFormat(0, static_cast<int>(text.size()), lookColor(color, scheme));
  }
};

QFont detailsFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(kDetailsPixels);
  return font;
}

}  // namespace

InspectorDetails::InspectorDetails()
    : m_title(new QLabel), m_text(new QPlainTextEdit), m_colors(new DifferenceColors(this)) {
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
  const bool isDifference = event && event->form == InspectorEvent::Form::Difference;
  m_colors->setDocument(isDifference ? m_text->document() : nullptr);
  m_text->setPlainText(event ? event->wholeContent() : QString());
  m_colors->rehighlight();
}

void InspectorDetails::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) m_colors->rehighlight();
}
