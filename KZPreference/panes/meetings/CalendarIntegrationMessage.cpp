#include "KZPreference/panes/meetings/CalendarIntegrationMessage.h"

#include <QAccessibleWidget>

#include "KZPreference/layout/Resources.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

// Screen readers announce a notification when it is shown, but not a label.
class StatusLineAccessible final : public QAccessibleWidget {
 public:
  explicit StatusLineAccessible(StaticText* line) : QAccessibleWidget(line, QAccessible::Notification) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? static_cast<StaticText*>(widget())->text()
                                     : QAccessibleWidget::text(kind);
  }
};

}  // namespace

void CalendarIntegrationMessage::setMessageTxt(StaticText* messageTxt) {
  if (!messageTxt || messageTxt == m_messageTxt) return;
  m_messageTxt = messageTxt;
  QAccessible::registerAccessibleInterface(new StatusLineAccessible(messageTxt));
}

void CalendarIntegrationMessage::showErrorMessage(const Dictionary& result) {
  const QString text = textValue(dictionaryValue(result, kKZErrorHandleData), kKZErrorMessage);
  if (!text.isEmpty()) show(text, SystemColor::Red);
}

void CalendarIntegrationMessage::showInvalidAccountMessage() {
  show(localizedString("Invalid email or password"), SystemColor::Red);
}

void CalendarIntegrationMessage::showInvalidEmailMessage() {
  show(localizedString("Invalid email address"), SystemColor::Red);
}

void CalendarIntegrationMessage::showSuccessMessage() {
  show(localizedString("Applied successfully"), SystemColor::Blue);
}

void CalendarIntegrationMessage::hideMessage() {
  if (m_messageTxt) m_messageTxt->hide();
}

void CalendarIntegrationMessage::show(const QString& text, SystemColor color) {
  if (!m_messageTxt) return;
  const bool isReplaced = m_messageTxt->isVisible() && m_messageTxt->text() != text;
  m_messageTxt->setText(text);
  m_messageTxt->setSystemColor(color);
  m_messageTxt->show();
  if (!isReplaced) return;
  // A line that was hidden is announced because it is shown.
  QAccessibleEvent announcement(m_messageTxt, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&announcement);
}
