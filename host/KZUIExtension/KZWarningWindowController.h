#pragma once

#include <QPointer>
#include <QString>
#include <functional>

#include "host/KZFoundation/KZHostExport.h"

class QWidget;

// A small window that shows an error, with one button. It never blocks. Main thread only.
class KZ_HOST_EXPORT KZWarningWindowController {
 public:
  using Observer = std::function<void(const QString& title, const QString& message)>;

  // The delegate is ignored; plug-ins pass one.
  explicit KZWarningWindowController(const void* delegate);
  ~KZWarningWindowController();
  Q_DISABLE_COPY_MOVE(KZWarningWindowController)

  // Shows the window, or changes the texts of the one that is open. Plain text; a null message is left out, a
  // long one scrolls.
  void showWithTitle(const QString& title, const QString& message);

  // Called each time this process shows a warning; an empty function removes the observer.
  static void setObserver(Observer observer);

 private:
  QPointer<QWidget> m_window;
};
