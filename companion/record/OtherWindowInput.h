#pragma once

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>

// Says what the user does in the windows that the plug-in opens beside its own, for which there are no steps:
// where it was done, never what was typed. Main thread only.
class OtherWindowInput final {
 public:
  // Null when there is nothing to say.
  QString describe(QWidget* target, const QEvent& event);

 private:
  QString typingIn(const QWidget& window);

  QPointer<const QWidget> m_typedInto;
};
