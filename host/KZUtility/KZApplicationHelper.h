#pragma once

#include <QPointer>
#include <QWidget>

#include "host/KZFoundation/KZHostExport.h"

// What the plug-in asks of the host application: its main window, the signed-in user's site. Main thread
// only.
class KZ_HOST_EXPORT KZApplicationHelper {
 public:
  static KZApplicationHelper& sharedInstance();

  bool siteEnableOutlook() const { return m_siteEnableOutlook; }
  void setSiteEnableOutlook(bool isEnabled) { m_siteEnableOutlook = isEnabled; }

  // The window that Preferences belong to, from their next showing on, while it is visible: on Wayland they
  // stay in front of it. nullptr for none. Not owned.
  QWidget* mainWindow() const { return m_mainWindow; }
  void setMainWindow(QWidget* window) { m_mainWindow = window; }

 private:
  KZApplicationHelper() = default;

  bool m_siteEnableOutlook = true;
  QPointer<QWidget> m_mainWindow;
};
