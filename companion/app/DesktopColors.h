#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <optional>

#include "platform/LookPalette.h"

// Whether the desktop wants dark or light windows and high contrast: by its settings portal, which is never
// waited for. Until the portal has answered, and where it says nothing, Qt's platform theme decides. Main
// thread only.
class DesktopColors final : public QObject {
  Q_OBJECT

 public:
  // Before the application gets a palette that is not the theme's.
  DesktopColors();

  // Asks the portal on the session bus and listens to it from then on. Once.
  void follow(QDBusConnection bus);
  LookScheme scheme() const;

 Q_SIGNALS:
  void changed();  // the scheme is another one

 private Q_SLOTS:
  void takeChange(const QDBusMessage& change);

 private:
  void take(const QVariantMap& settings);
  void takeTheme();

  bool m_isThemeDark;
  bool m_hasThemeContrast;
  std::optional<bool> m_isDark;  // by the portal
  bool m_hasContrast = false;    // by the portal
};
