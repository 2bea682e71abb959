#include "companion/record/PluginWindow.h"

#include <QAction>
#include <QApplication>
#include <QToolBar>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "companion/format/ControlFinder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

namespace pluginwindow {

QWidget* widgetOf(const QObject* window) {
  const QWidgetList topLevels = QApplication::topLevelWidgets();
  const auto shown = std::ranges::find_if(
      topLevels, [window](const QWidget* widget) { return widget->windowHandle() == window; });
  return shown == topLevels.end() ? nullptr : *shown;
}

Window* ownerOf(QWidget* widget) {
  Window* preferences = findPreferencesWindow();
  if (!preferences) return nullptr;
  for (QWidget* ancestor = widget; ancestor; ancestor = ancestor->parentWidget()) {
    if (ancestor == preferences) return preferences;
  }
  return nullptr;
}

PopUpButton* popUpOf(QWidget* widget) {
  for (QWidget* ancestor = widget; ancestor; ancestor = ancestor->parentWidget()) {
    if (auto* button = qobject_cast<PopUpButton*>(ancestor)) return button;
  }
  return nullptr;
}

QAction* paneOf(const Window& window, QWidget* widget) {
  const QToolBar* toolBar = toolBarOf(window);
  if (!toolBar || !widget) return nullptr;
  const QList<QAction*> items = paneItemsOf(window);
  const auto item =
      std::ranges::find_if(items, [&](QAction* pane) { return toolBar->widgetForAction(pane) == widget; });
  return item == items.end() ? nullptr : *item;
}

QString nameOf(const Window& window, QWidget* control) {
  const ControlFinder finder(contentViewOf(window));
  const QString name = finder.nameOf(control);
  return !name.isNull() && finder.find(name).control == control ? name : QString();
}

QString clickableNameOf(const Window& window, QWidget* widget) {
  const ControlFinder finder(contentViewOf(window));
  const QString name = finder.nameOf(widget);
  const QWidget* control = name.isNull() ? nullptr : finder.find(name).control;
  if (!control) return {};
  const QWidget* middle = control->childAt(control->rect().center());
  return !middle || finder.nameOf(middle) == name ? name : QString();
}

}  // namespace pluginwindow
