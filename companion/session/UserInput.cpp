#include "companion/session/UserInput.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QScrollArea>
#include <QToolBar>
#include <QWidget>
#include <QWindow>

#include "companion/format/ControlFinder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "companion/session/InputEvents.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

namespace {

QString refusal(const QWidget& control, const char* why) {
  return QStringLiteral("%1 is %2").arg(controlNameOf(control), QLatin1String(why));
}

// What keeps a user from using the control, wherever it is scrolled to; null when nothing does.
QString obstacleTo(const QWidget& control) {
  if (!control.isVisible()) return refusal(control, "hidden");
  if (!control.isEnabled()) return refusal(control, "disabled");
  return {};
}

void scrollIntoView(QWidget* control) {
  for (QWidget* parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(parent)) area->ensureWidgetVisible(control);
  }
}

// A click makes its window the key window, and keys go to the key window only.
void makeKey(QWidget* window) {
  if (window->isActiveWindow()) return;
  window->activateWindow();
  eventpump::settle();
}

QString clickMiddle(QWidget* target, const QString& name, Qt::KeyboardModifiers modifiers) {
  scrollIntoView(target);
  QWidget* window = target->window();
  makeKey(window);
  const QPoint middle = target->mapTo(window, target->rect().center());
  const QWidget* hit = window->childAt(middle);
  if (hit != target && !(hit && target->isAncestorOf(hit))) return QStringLiteral("%1 is covered").arg(name);
  inputevents::click(window->windowHandle(), middle, modifiers);
  return {};
}

void focus(QWidget* control) {
  makeKey(control->window());
  control->setFocus(Qt::MouseFocusReason);
}

}  // namespace

UserInput::~UserInput() {
  delete m_elsewhere;
}

QString UserInput::click(QWidget* control, Qt::KeyboardModifiers modifiers) {
  const QString obstacle = obstacleTo(*control);
  return obstacle.isNull() ? clickMiddle(control, controlNameOf(*control), modifiers) : obstacle;
}

QString UserInput::clickPane(const Window& window, QAction* item, Qt::KeyboardModifiers modifiers) {
  QWidget* button = toolBarOf(window)->widgetForAction(item);
  if (!button || !button->isVisible()) return QStringLiteral("%1 is hidden").arg(item->text());
  if (!button->isEnabled()) return QStringLiteral("%1 is disabled").arg(item->text());
  return clickMiddle(button, item->text(), modifiers);
}

QString UserInput::type(QLineEdit* field, const QString& text) {
  const QString obstacle = obstacleTo(*field);
  if (!obstacle.isNull()) return obstacle;
  scrollIntoView(field);
  focus(field);
  field->selectAll();
  QWindow* window = field->window()->windowHandle();
  if (text.isEmpty()) {
    inputevents::pressKey(window, Qt::Key_Delete, Qt::NoModifier);
  } else {
    inputevents::typeText(window, text);
  }
  return {};
}

QString UserInput::press(QWidget* control, int key, Qt::KeyboardModifiers modifiers) {
  const QString obstacle = control->isWindow() && control->isVisible() ? QString() : obstacleTo(*control);
  if (!obstacle.isNull()) return obstacle;
  if (control->isWindow()) {
    makeKey(control);
  } else {
    focus(control);
  }
  inputevents::pressKey(control->window()->windowHandle(), key, modifiers);
  return {};
}

QString UserInput::choose(PopUpButton* button, int item) {
  const QString refused = click(button, Qt::NoModifier);
  if (!refused.isNull()) return refused;
  eventpump::settle();
  QWindow* list = button->view()->window()->windowHandle();
  if (!button->view()->isVisible()) return QStringLiteral("%1 does not open").arg(controlNameOf(*button));
  inputevents::pressKey(list, Qt::Key_Home, Qt::NoModifier);
  for (int step = 0; step < item; ++step) inputevents::pressKey(list, Qt::Key_Down, Qt::NoModifier);
  inputevents::pressKey(list, Qt::Key_Return, Qt::NoModifier);
  return {};
}

QString UserInput::close(Window* window) {
  if (!window || !window->isVisible()) return QStringLiteral("no window is open");
  window->windowHandle()->close();
  return {};
}

QString UserInput::activate(Window* window, bool isToBeKey) {
  if (!window || !window->isVisible()) return QStringLiteral("no window is open");
  if (isToBeKey) {
    makeKey(window);
    delete m_elsewhere;
    m_elsewhere = nullptr;
    return {};
  }
  if (!m_elsewhere) {
    m_elsewhere = new QWidget;
    m_elsewhere->resize(1, 1);
    m_elsewhere->show();
  }
  makeKey(m_elsewhere);
  return {};
}
