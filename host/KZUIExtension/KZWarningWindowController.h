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

  // The delegate is part of the signature that plug-ins use; the window needs nothing of it.
  explicit KZWarningWindowController(const void* delegate);
  ~KZWarningWindowController();
  Q_DISABLE_COPY_MOVE(KZWarningWindowController)

  // Shown again, the one window takes the new texts. Plain text; a missing message shows as none; a long one
  // is scrolled.
  void showWithTitle(const QString& title, const QString& message);

  // Called at every showing in this process; an empty function ends that.
  static void setObserver(Observer observer);

 private:
  QPointer<QWidget> m_window;
};
