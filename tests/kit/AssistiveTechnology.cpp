#include "tests/kit/AssistiveTechnology.h"

#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <private/qguiapplication_p.h>
#include <QAccessible>
#include <utility>

namespace {

QStringList s_announced;

void note(QAccessibleEvent* event) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  if (event->type() == QAccessible::Announcement)
    s_announced.append(static_cast<QAccessibleAnnouncementEvent*>(event)->message());
#endif
  if (event->type() != QAccessible::ObjectShow) return;
  const QAccessibleInterface* shown = event->accessibleInterface();
  if (shown && shown->role() == QAccessible::Notification) s_announced.append(shown->text(QAccessible::Name));
}

// Before all handlers of the tested code, which pass on to it.
[[maybe_unused]] const QAccessible::UpdateHandler s_installed = QAccessible::installUpdateHandler(note);

void setActive(bool isActive) {
  QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isActive);
}

}  // namespace

namespace kit {

AssistiveTechnology::AssistiveTechnology() {
  // Later versions of Qt report while nobody listens, too.
  s_announced.clear();
  setActive(true);
}

AssistiveTechnology::~AssistiveTechnology() {
  setActive(false);
}

QStringList AssistiveTechnology::takeAnnounced() {
  return std::exchange(s_announced, {});
}

}  // namespace kit
