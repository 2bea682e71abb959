#include "companion/record/PluginWindow.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolBar>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "companion/format/ControlFinder.h"
#include "companion/format/KeyNames.h"
#include "companion/runtime/PreferencesWindow.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

namespace pluginwindow {
namespace {

QString placeIn(const QWidget& window, const QWidget* widget) {
  const QString className = QString::fromLatin1(window.metaObject()->className());
  if (!widget || widget == &window) return className;
  const QString name = widget->objectName();
  return QStringLiteral("%1 in %2")
      .arg(name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : name, className);
}

}  // namespace

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

QString inputElsewhere(const QWidget& target, const QEvent& event) {
  static constexpr auto controlKeys = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab,
                                       Qt::Key_Backtab};
  const QWidget& window = *target.window();
  // By name, since the second one's class stays inside the plug-in.
  if (!window.inherits("KZWarningWindow") && !window.inherits("ADSignInDialog")) return {};
  const QWidget* focus = window.focusWidget();
  if (event.type() == QEvent::MouseButtonPress) {
    const QPoint place = static_cast<const QMouseEvent&>(event).position().toPoint();
    return QStringLiteral("a click on ") + placeIn(window, target.childAt(place));
  }
  const bool isKey = event.type() == QEvent::KeyPress;
  const int key = isKey ? static_cast<const QKeyEvent&>(event).key() : 0;
  if (std::ranges::find(controlKeys, key) != controlKeys.end())
    return QStringLiteral("the key %1 on %2").arg(keynames::nameOf(key, {}), placeIn(window, focus));
  const bool isTyping = isKey || event.type() == QEvent::InputMethod || event.type() == QEvent::Drop;
  return isTyping ? QStringLiteral("keys typed into ") + placeIn(window, focus) : QString();
}

}  // namespace pluginwindow
