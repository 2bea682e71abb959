#include "KZPreference/panes/meetings/CalendarIntegrationMessage.h"

#include "KZPreference/layout/Resources.h"
#include "host/KZFoundation/KZConstants.h"
#include "platform/Accessible.h"

void CalendarIntegrationMessage::setMessageTxt(StaticText* messageTxt) {
  if (messageTxt) m_messageTxt = messageTxt;
}

void CalendarIntegrationMessage::showErrorMessage(const Dictionary& result) {
  if (!m_messageTxt) return;
  const QString text = textValue(dictionaryValue(result, kKZErrorHandleData), kKZErrorMessage);
  // Without a text the end of the spinner is all that is seen.
  if (text.isEmpty()) return announce(m_messageTxt, localizedString("Applied failed"));
  show(text, SystemColor::Red, Announce::Yes);
}

void CalendarIntegrationMessage::showInvalidAccountMessage(Announce announced) {
  show(localizedString("Invalid email or password"), SystemColor::Red, announced);
}

void CalendarIntegrationMessage::showInvalidEmailMessage() {
  show(localizedString("Invalid email address"), SystemColor::Red, Announce::Yes);
}

void CalendarIntegrationMessage::showSuccessMessage(Announce announced) {
  show(localizedString("Applied successfully"), SystemColor::Blue, announced);
}

void CalendarIntegrationMessage::hideMessage() {
  if (m_messageTxt) m_messageTxt->hide();
}

void CalendarIntegrationMessage::show(const QString& text, SystemColor color, Announce announced) {
  if (!m_messageTxt) return;
  m_messageTxt->setText(text);
  m_messageTxt->setSystemColor(color);
  m_messageTxt->raise();
  m_messageTxt->show();
  if (announced == Announce::Yes) announce(m_messageTxt, text);
}
