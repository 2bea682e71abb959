#include "KZPreference/calendar/CalendarIntegrationMessage.h"

#include <QAccessible>

#include "KZPreference/layout/Localization.h"
#include "host/KZFoundation/KZConstants.h"

void CalendarIntegrationMessage::setMessageTxt(StaticText* messageTxt) {
  if (messageTxt) m_messageTxt = messageTxt;
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
  m_messageTxt->setText(text);
  m_messageTxt->setSystemColor(color);
  m_messageTxt->show();
  QAccessibleEvent announcement(m_messageTxt, QAccessible::Alert);
  QAccessible::updateAccessibility(&announcement);
}
