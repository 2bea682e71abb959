#include "companion/app/DemoTour.h"

#include <QAction>
#include <QDir>
#include <QPixmap>

#include "companion/app/CompanionWindow.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "platform/WindowController.h"

namespace {

QString paneFileName(qsizetype place) {
  static const QStringList names = {QStringLiteral("general"), QStringLiteral("account"),
                                    QStringLiteral("meetings"), QStringLiteral("notifications"),
                                    QStringLiteral("video-devices")};
  return names.value(place, QStringLiteral("pane-%1").arg(place + 1));
}

}  // namespace

QStringList DemoTour::play() {
  if (!QDir().mkpath(m_folder)) return {};
  m_window->show();
  QStringList paths = playVariant(demouser::Variant::SignedIn, QStringLiteral("signed-in"));
  paths += playVariant(demouser::Variant::Guest, QStringLiteral("guest"));
  paths.append(takePicture(m_window, QStringLiteral("companion")));
  paths.removeAll(QString());
  return paths;
}

QStringList DemoTour::playVariant(demouser::Variant variant, const QString& name) {
  m_window->become(variant);
  m_window->showPreferences();
  eventpump::settle();
  QStringList paths;
  Window* window = findPreferencesWindow();
  if (!window) return paths;
  window->controller()->setProperty("crossFade", false);
  const QList<QAction*> items = paneItemsOf(*window);
  for (qsizetype place = 0; place < items.size(); ++place) {
    if (!m_user.clickPane(*window, items.at(place), Qt::NoModifier).isNull()) continue;
    eventpump::settle();
    paths.append(takePicture(window, name + u'-' + paneFileName(place)));
  }
  return paths;
}

QString DemoTour::takePicture(QWidget* window, const QString& name) {
  const QString path = QDir(m_folder).filePath(name + QStringLiteral(".png"));
  return window->grab().save(path, "PNG") ? QDir::cleanPath(path) : QString();
}
