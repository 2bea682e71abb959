#pragma once

#include <QPointer>

#include "host/KZFoundation/Dictionary.h"
#include "platform/StaticText.h"

// The status line of a calendar group. What just happened is announced to screen readers. Main thread only.
class CalendarIntegrationMessage {
 public:
  enum class Announce { No, Yes };

  // Not owned; nullptr is ignored.
  void setMessageTxt(StaticText* messageTxt);

  // The host's text, in red; without a text the line stays as it is.
  void showErrorMessage(const Dictionary& result);
  void showInvalidAccountMessage(Announce announced = Announce::Yes);
  void showInvalidEmailMessage();
  void showSuccessMessage(Announce announced = Announce::Yes);
  void hideMessage();

 private:
  void show(const QString& text, SystemColor color, Announce announced);

  QPointer<StaticText> m_messageTxt;
};
