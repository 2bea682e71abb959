#include "companion/session/UserInput.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QTest>
#include <QToolBar>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <utility>

#include "companion/format/ControlFinder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

namespace {

// A field lays out its whole text at every key, so the rest of a long text is sent at once, as from an input
// method.
constexpr qsizetype kKeyByKeyLimit = 2000;

constexpr std::pair<Qt::KeyboardModifier, Qt::Key> kModifierKeys[] = {
    {Qt::ShiftModifier, Qt::Key_Shift},
    {Qt::ControlModifier, Qt::Key_Control},
    {Qt::AltModifier, Qt::Key_Alt},
    {Qt::MetaModifier, Qt::Key_Meta},
};

// A window may be deleted by any event.
using WindowPointer = QPointer<QWindow>;

void sendKey(const WindowPointer& window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
             const QString& text = {}) {
  if (window) qt_handleKeyEvent(window, type, key, modifiers, text);
}

// The modifier keys are pressed before and released after it, so that QGuiApplication::keyboardModifiers is
// right at every moment.
void whileHolding(Qt::KeyboardModifiers modifiers, const WindowPointer& window,
                  const std::function<void()>& input) {
  Qt::KeyboardModifiers held;
  for (const auto& [modifier, key] : kModifierKeys) {
    if (!modifiers.testFlag(modifier)) continue;
    sendKey(window, QEvent::KeyPress, key, held);
    held |= modifier;
  }
  input();
  for (const auto& [modifier, key] : kModifierKeys) {
    if (!held.testFlag(modifier)) continue;
    held.setFlag(modifier, false);
    sendKey(window, QEvent::KeyRelease, key, held);
  }
}

void sendClick(const WindowPointer& window, const QPoint& place, Qt::KeyboardModifiers modifiers) {
  whileHolding(modifiers, window, [&] {
    QTest::mouseMove(window, place);
    QTest::mouseClick(window, Qt::LeftButton, modifiers, place);
  });
}

QString textOfKey(int key, Qt::KeyboardModifiers modifiers) {
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return QStringLiteral("\r");
  if (key == Qt::Key_Tab) return QStringLiteral("\t");
  if (key == Qt::Key_Escape) return QStringLiteral("\x1b");
  if (key < Qt::Key_Space || key > 0xffff) return {};
  // As X11 has it: Control turns a letter into its control character.
  const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
  if (isLetter && modifiers.testFlag(Qt::ControlModifier)) return {QChar(static_cast<char16_t>(key & 0x1f))};
  const QChar character(static_cast<char16_t>(key));
  return modifiers.testFlag(Qt::ShiftModifier) ? character : character.toLower();
}

void pressKey(const WindowPointer& window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  whileHolding(modifiers, window, [&] {
    sendKey(window, QEvent::KeyPress, key, modifiers, text);
    sendKey(window, QEvent::KeyRelease, key, modifiers, text);
  });
}

void pressKey(const WindowPointer& window, int key, Qt::KeyboardModifiers modifiers = {}) {
  pressKey(window, key, modifiers, textOfKey(key, modifiers));
}

int keyOfCharacter(char32_t character) {
  if (character == U'\n' || character == U'\r') return Qt::Key_Return;
  if (character == U'\t') return Qt::Key_Tab;
  return character < 0x10000 ? static_cast<int>(QChar::toUpper(character))
                             : static_cast<int>(Qt::Key_unknown);
}

void typeText(const WindowPointer& window, const QString& text) {
  qsizetype place = 0;
  while (place < text.size() && place < kKeyByKeyLimit) {
    const bool isPair =
        text.at(place).isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
    const QString character = text.mid(place, isPair ? 2 : 1);
    const int key = keyOfCharacter(character.toUcs4().first());
    pressKey(window, key, {}, key == Qt::Key_Return ? QStringLiteral("\r") : character);
    place += character.size();
  }
  if (place < text.size()) pressKey(window, Qt::Key_unknown, {}, text.mid(place));
}

// The reason why a user could not use the control, even after scrolling; null when there is none.
QString obstacleTo(const QWidget& control, const QString& name) {
  if (!control.isVisible()) return QStringLiteral("%1 is hidden").arg(name);
  if (!control.isEnabled()) return QStringLiteral("%1 is disabled").arg(name);
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
  const QString obstacle = obstacleTo(*target, name);
  if (!obstacle.isNull()) return obstacle;
  scrollIntoView(target);
  QWidget* window = target->window();
  makeKey(window);
  const QPoint middle = target->mapTo(window, target->rect().center());
  const QWidget* hit = window->childAt(middle);
  if (hit != target && !(hit && target->isAncestorOf(hit))) return QStringLiteral("%1 is covered").arg(name);
  sendClick(window->windowHandle(), middle, modifiers);
  return {};
}

}  // namespace

QString UserInput::click(QWidget* control, Qt::KeyboardModifiers modifiers) {
  return clickMiddle(control, controlNameOf(*control), modifiers);
}

QString UserInput::clickPane(const Window& window, QAction* item, Qt::KeyboardModifiers modifiers) {
  QWidget* button = toolBarOf(window)->widgetForAction(item);
  if (!button) return QStringLiteral("%1 is hidden").arg(item->text());
  return clickMiddle(button, item->text(), modifiers);
}

QString UserInput::type(QLineEdit* field, const QString& text) {
  const QString obstacle = obstacleTo(*field, controlNameOf(*field));
  if (!obstacle.isNull()) return obstacle;
  scrollIntoView(field);
  makeKey(field->window());
  field->setFocus(Qt::MouseFocusReason);
  field->selectAll();
  QWindow* window = field->window()->windowHandle();
  if (text.isEmpty()) {
    pressKey(window, Qt::Key_Delete);
  } else {
    typeText(window, text);
  }
  return {};
}

QString UserInput::press(QWidget* control, int key, Qt::KeyboardModifiers modifiers) {
  const QString obstacle = obstacleTo(*control, controlNameOf(*control));
  if (!obstacle.isNull()) return obstacle;
  makeKey(control->window());
  if (!control->isWindow()) control->setFocus(Qt::MouseFocusReason);
  pressKey(control->window()->windowHandle(), key, modifiers);
  return {};
}

QString UserInput::choose(PopUpButton* button, int item) {
  const QString refused = click(button, Qt::NoModifier);
  if (!refused.isNull()) return refused;
  eventpump::settle();
  QWindow* list = button->view()->window()->windowHandle();
  if (!button->view()->isVisible()) return QStringLiteral("%1 does not open").arg(controlNameOf(*button));
  pressKey(list, Qt::Key_Home);
  for (int step = 0; step < item; ++step) pressKey(list, Qt::Key_Down);
  pressKey(list, Qt::Key_Return);
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
    m_elsewhere.reset();
    return {};
  }
  if (!m_elsewhere) {
    m_elsewhere = std::make_unique<QWidget>();
    m_elsewhere->resize(1, 1);
    m_elsewhere->show();
  }
  makeKey(m_elsewhere.get());
  return {};
}
