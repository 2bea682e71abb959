#pragma once

#include <QPointer>

#include "host/KZFoundation/Dictionary.h"
#include "platform/StaticText.h"

// The status line of a calendar group, announced to screen readers. Main thread only.
class CalendarIntegrationMessage {
 public:
  // Not owned; nullptr is ignored.
  void setMessageTxt(StaticText* messageTxt);

  // The host's text, in red; without a text the line stays as it is.
  void showErrorMessage(const Dictionary& result);
  void showInvalidAccountMessage();
  void showInvalidEmailMessage();
  void showSuccessMessage();
  void hideMessage();

 private:
  void show(const QString& text, SystemColor color);

  QPointer<StaticText> m_messageTxt;
};
