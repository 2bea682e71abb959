#include "companion/record/InputWatch.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "companion/format/KeyNames.h"
#include "companion/record/PluginWindow.h"

namespace {

bool isKeyOf(const QKeyEvent& key, std::initializer_list<int> keys) {
  return std::ranges::find(keys, key.key()) != keys.end();
}

bool isModifierKey(const QKeyEvent& key) {
  return isKeyOf(key, {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                       Qt::Key_CapsLock, Qt::Key_NumLock});
}

// The field edits its text with it.
bool isEditing(const QKeyEvent& key) {
  if (isKeyOf(key, {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Up,
                    Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}))
    return false;
  if (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35) return false;
  if (!(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) return true;
  // A field takes signs that are typed with other modifiers too, and one of them may be part of a password.
  const bool isControl = (key.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
  if (!isControl && !key.text().isEmpty() && key.text().front().isPrint()) return true;
  static const auto edits = {QKeySequence::Copy,
                             QKeySequence::Cut,
                             QKeySequence::Paste,
                             QKeySequence::Undo,
                             QKeySequence::Redo,
                             QKeySequence::SelectAll,
                             QKeySequence::DeleteStartOfWord,
                             QKeySequence::DeleteEndOfWord,
                             QKeySequence::DeleteEndOfLine,
                             QKeySequence::MoveToNextWord,
                             QKeySequence::MoveToPreviousWord,
                             QKeySequence::SelectNextWord,
                             QKeySequence::SelectPreviousWord};
  return std::ranges::any_of(edits, [&](QKeySequence::StandardKey edit) { return key.matches(edit); });
}

QPoint placeOf(const QEvent& event) {
  if (event.isSinglePointEvent())
    return static_cast<const QSinglePointEvent&>(event).position().toPoint();  // NOLINT: by its type
  return event.type() == QEvent::Drop ? static_cast<const QDropEvent&>(event).position().toPoint() : QPoint();
}

QWidget* widgetAt(QWidget* window, const QEvent& event) {
  QWidget* child = window->childAt(placeOf(event));
  return child ? child : window;
}

}  // namespace

InputWatch::InputWatch(Handlers handlers)
    : m_handlers(std::move(handlers)),
      m_typed([this](const TypedText::Edit& edit) { m_handlers.typed(edit); }) {
  Application::setInputListener(this);
}

InputWatch::~InputWatch() {
  Application::setInputListener(nullptr);
}

bool InputWatch::inputBegins(QObject* receiver, QEvent* event) {
  QWidget* widget =
      receiver->isWidgetType() ? static_cast<QWidget*>(receiver) : pluginwindow::widgetOf(receiver);
  Window* window = widget ? pluginwindow::ownerOf(widget) : nullptr;
  if (!window) {
    if (widget) noteElsewhere(widget, *event);
    return false;
  }
  const QEvent::Type type = event->type();
  if (type == QEvent::Show) {
    m_isFreshlyShown = m_isFreshlyShown || widget == window;
    return false;
  }
  const bool isState = type == QEvent::WindowActivate || type == QEvent::WindowDeactivate;
  // A window that closes or changes place inside of something else does so because of it.
  const bool isOwnDoing = !m_handlers.isPluginAtWork();
  if (isState && (widget != window || !isOwnDoing || !isActivation(*window, type))) return false;
  if (type == QEvent::Close && (widget != window || !isOwnDoing)) return false;
  if (type == QEvent::ShortcutOverride && !isForList()) return false;
  m_window = window;
  ++m_depth;
  m_handlers.begun();
  if (isState) {
    tell({{"activate", type == QEvent::WindowActivate}});
  } else {
    onWindowEvent(widget, event);
  }
  return true;
}

void InputWatch::noteElsewhere(QWidget* target, const QEvent& event) {
  const QString what = m_elsewhere.describe(target, event);
  if (what.isNull()) return;
  m_typed.tell();
  m_handlers.unnamed(what);
}

// The list of a pop-up takes keys before they are pressed.
bool InputWatch::isForList() const {
  QWidget* list = QApplication::activePopupWidget();
  return list && pluginwindow::ownerOf(list) && pluginwindow::popUpOf(list);
}

void InputWatch::inputEnded() {
  if (--m_depth == 0) {
    m_typed.inputEnded();
    m_isPressing = false;
    m_choosing = nullptr;
    disconnect(m_choices);
  }
  m_handlers.ended();
}

// A window that is shown becomes active by itself.
bool InputWatch::isActivation(const Window& window, QEvent::Type type) {
  if (type == QEvent::WindowDeactivate) return window.isVisible();
  return !std::exchange(m_isFreshlyShown, false);
}

void InputWatch::onWindowEvent(QWidget* target, QEvent* event) {
  if (event->type() == QEvent::InputMethod) return followField(target, TypedText::Input::MayEdit);
  if (event->type() == QEvent::Close) return tell({{"close", true}});
  QWidget* list = QApplication::activePopupWidget();
  if (list && pluginwindow::ownerOf(list)) {
    if (PopUpButton* button = pluginwindow::popUpOf(list)) return onListInput(button, *event);
    // A menu may change the text that it was opened for.
    return followField(m_window->focusWidget(), TypedText::Input::MayEdit);
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() == Qt::LeftButton) return onPress(widgetAt(target, *event), mouse->modifiers());
      return followField(widgetAt(target, *event), TypedText::Input::MayEdit);
    }
    case QEvent::MouseButtonRelease:
      return onRelease(widgetAt(target, *event));
    case QEvent::KeyPress:
      return onKey(*static_cast<QKeyEvent*>(event));
    case QEvent::Wheel:
      if (auto* button = qobject_cast<PopUpButton*>(widgetAt(target, *event))) awaitChoice(button);
      return;
    case QEvent::Drop:
      return followField(widgetAt(target, *event), TypedText::Input::MayEdit);
    default:
      return;
  }
}

void InputWatch::onPress(QWidget* hit, Qt::KeyboardModifiers modifiers) {
  followField(hit, TypedText::Input::EditsNothing);
  m_pressed = hit;
  m_press = {};
  // A pop-up's choice is told when it is made.
  if (!hit->isEnabled() || qobject_cast<PopUpButton*>(hit)) return;
  const QAction* pane = pluginwindow::paneOf(*m_window, hit);
  const QString name = pane ? pane->text() : pluginwindow::clickableNameOf(*m_window, hit);
  if (name.isNull()) {
    m_handlers.unnamed(QStringLiteral("a click on %1").arg(QLatin1String(hit->metaObject()->className())));
    return;
  }
  m_press = {{pane ? "pane" : "click", name}};
  if (modifiers.testFlag(Qt::ShiftModifier)) m_press.emplaceBack("shift", true);
  m_isPressing = true;
}

void InputWatch::onRelease(QWidget* hit) {
  const bool isClick = hit == m_pressed && !m_press.isEmpty();
  m_pressed = nullptr;
  if (isClick) tell(std::exchange(m_press, {}));
}

void InputWatch::onKey(const QKeyEvent& key) {
  const bool isTaken = key.key() == std::exchange(m_listKey, 0);
  if (isTaken || isModifierKey(key)) return;
  QWidget* focus = m_window->focusWidget();
  const bool isEdit = qobject_cast<QLineEdit*>(focus) && isEditing(key);
  followField(focus, isEdit ? TypedText::Input::MayEdit : TypedText::Input::EditsNothing);
  if (isEdit) return;
  const bool isSpace = key.key() == Qt::Key_Space || key.key() == Qt::Key_Select;
  if (const QAction* pane = isSpace ? pluginwindow::paneOf(*m_window, focus) : nullptr)
    return tell({{"pane", pane->text()}});
  auto* button = qobject_cast<PopUpButton*>(focus);
  if (button &&
      !isKeyOf(key, {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) &&
      !key.modifiers().testFlag(Qt::ControlModifier))
    return awaitChoice(button);
  const QString name = keynames::nameOf(key.key(), key.modifiers());
  if (name.isNull()) return m_handlers.unnamed(QStringLiteral("a key without a name"));
  Step step = {{"key", name}};
  const QString place = focus ? pluginwindow::nameOf(*m_window, focus) : QString();
  if (!place.isNull()) step.emplaceBack("in", place);
  const QStringList modifiers = keynames::namesOf(key.modifiers());
  if (!modifiers.isEmpty()) step.emplaceBack("modifiers", QJsonArray::fromStringList(modifiers));
  tell(step);
}

void InputWatch::onListInput(PopUpButton* button, const QEvent& event) {
  bool isChoosing = event.type() == QEvent::MouseButtonRelease;
  if (event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(event);
    m_listKey = key.key();
    isChoosing = isKeyOf(key, {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select});
  }
  if (isChoosing) awaitChoice(button);
}

void InputWatch::followField(QWidget* widget, TypedText::Input input) {
  auto* field = qobject_cast<QLineEdit*>(widget);
  if (!field) return;
  const QString name = pluginwindow::nameOf(*m_window, field);
  if (!name.isNull()) m_typed.inputBegins(field, name, input);
}

void InputWatch::awaitChoice(PopUpButton* button) {
  m_choosing = button;
  m_choosingName = pluginwindow::nameOf(*m_window, button);
  disconnect(m_choices);
  m_choices = connect(button, &PopUpButton::chosen, this, &InputWatch::tellChoice);
}

void InputWatch::tellChoice() {
  if (!m_choosing) return;
  const QString item = m_choosing->currentText();
  m_choosing = nullptr;
  if (m_choosingName.isNull()) return m_handlers.unnamed(QStringLiteral("a choice"));
  tell({{"choose", m_choosingName}, {"item", item}});
}

void InputWatch::tell(const Step& step) {
  m_typed.tell();
  m_handlers.step(step);
}

void InputWatch::tellPending() {
  m_typed.tell();
  if (m_isPressing && !m_press.isEmpty()) tell(std::exchange(m_press, {}));
  tellChoice();
}
