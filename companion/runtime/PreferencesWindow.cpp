#include "companion/runtime/PreferencesWindow.h"

#include <QAction>
#include <QApplication>
#include <QStringList>
#include <QToolBar>
#include <algorithm>

#include "platform/ViewAnimation.h"
#include "platform/WindowController.h"

Window* findPreferencesWindow() {
  Window* found = nullptr;
  const QWidgetList topLevels = QApplication::topLevelWidgets();
  for (QWidget* widget : topLevels) {
    auto* window = qobject_cast<Window*>(widget);
    if (!window || !window->controller() || !contentViewOf(*window)) continue;
    // A window that is about to go may still be there beside the one that took its place.
    if (!found || window->isVisible()) found = window;
  }
  return found;
}

QWidget* contentViewOf(const Window& window) {
  return window.findChild<QWidget*>(QStringLiteral("contentSubview"));
}

QToolBar* toolBarOf(const Window& window) {
  auto* toolBar = window.findChild<QToolBar*>();
  return toolBar && !toolBar->isHidden() ? toolBar : nullptr;
}

QList<QAction*> paneItemsOf(const Window& window) {
  QList<QAction*> items;
  const QToolBar* toolBar = toolBarOf(window);
  if (!toolBar) return items;
  std::ranges::copy_if(toolBar->actions(), std::back_inserter(items), [](const QAction* action) {
    return !action->isSeparator() && !action->text().isEmpty();
  });
  return items;
}

QAction* paneItemNamed(const Window& window, const QString& label) {
  static const QStringList english = {QStringLiteral("General"), QStringLiteral("Account"),
                                      QStringLiteral("Meetings"), QStringLiteral("Notifications"),
                                      QStringLiteral("Video devices")};
  const QList<QAction*> items = paneItemsOf(window);
  const auto shown = std::ranges::find(items, label, &QAction::text);
  if (shown != items.end()) return *shown;
  const qsizetype place = english.indexOf(label);
  return place >= 0 && items.size() == english.size() ? items.at(place) : nullptr;
}

QWidgetList findSignInWindows() {
  QWidgetList found = QApplication::topLevelWidgets();
  // By name, since the class stays inside the plug-in.
  found.removeIf(
      [](const QWidget* window) { return !window->isVisible() || !window->inherits("ADSignInDialog"); });
  return found;
}

ViewAnimation* animationOf(const Window& window) {
  return window.controller()->findChild<ViewAnimation*>();
}
