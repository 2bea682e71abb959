#include "companion/record/InputRecorder.h"

#include <QAction>
#include <QApplication>
#include <QJsonArray>
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

// A field edits its text with the key.
bool isEditing(const QKeyEvent& key) {
  if (isKeyOf(key, {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Up,
                    Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}))
    return false;
  if (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35) return false;
  if (!(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) return true;
  // A field takes characters that are typed with other modifiers too, which may be part of a password.
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

InputRecorder::InputRecorder(RecordWriter* writer, Handlers handlers)
    : m_writer(writer), m_handlers(std::move(handlers)) {
  Application::setInputListener(this);
}

InputRecorder::~InputRecorder() {
  Application::setInputListener(nullptr);
}

bool InputRecorder::inputBegins(QObject* receiver, QEvent* event) {
  QWidget* widget =
      receiver->isWidgetType() ? static_cast<QWidget*>(receiver) : pluginwindow::widgetOf(receiver);
  if (!widget) return false;
  Window* window = pluginwindow::ownerOf(widget);
  if (!window) {
    const QString what = pluginwindow::inputElsewhere(*widget, *event);
    if (!what.isNull()) writeUnnamed(what);
    return false;
  }
  if (!isUsersDoing(*event, *widget, *window)) return false;
  m_window = window;
  ++m_depth;
  m_handlers.begun();
  onInput(widget, event);
  return true;
}

// Whether the event is an input of its own, and not the effect of another or of the plug-in.
bool InputRecorder::isUsersDoing(const QEvent& event, const QWidget& receiver, const Window& window) {
  const bool isOfWindow = &receiver == &window;
  switch (event.type()) {
    case QEvent::Show:
      m_isFreshlyShown = m_isFreshlyShown || isOfWindow;
      return false;
    case QEvent::WindowActivate:
      // A window that is shown becomes active by itself.
      return isOfWindow && !m_handlers.isPluginAtWork() && !std::exchange(m_isFreshlyShown, false);
    case QEvent::WindowDeactivate:
      return isOfWindow && !m_handlers.isPluginAtWork() && window.isVisible();
    case QEvent::Close:
      return isOfWindow && !m_handlers.isPluginAtWork();
    case QEvent::ShortcutOverride: {
      // The list of a pop-up takes keys before they are pressed.
      QWidget* list = QApplication::activePopupWidget();
      return list && pluginwindow::ownerOf(list) && pluginwindow::popUpOf(list);
    }
    default:
      return true;
  }
}

void InputRecorder::inputEnded() {
  if (--m_depth == 0) {
    readTypedText();
    m_mayBeTyping = false;
    if (m_choosing && m_choosing->title() != m_titleBefore) writeChoice();
    m_choosing = nullptr;
  }
  m_handlers.ended();
}

void InputRecorder::onInput(QWidget* target, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::WindowActivate || type == QEvent::WindowDeactivate)
    return write({{"activate", type == QEvent::WindowActivate}});
  if (type == QEvent::Close) return write({{"close", true}});
  if (type == QEvent::InputMethod) return expectTyping(target);
  QWidget* list = QApplication::activePopupWidget();
  if (list && pluginwindow::ownerOf(list)) return onListInput(list, *event);
  if (type == QEvent::KeyPress) return onKey(*static_cast<QKeyEvent*>(event));
  QWidget* hit = widgetAt(target, *event);
  if (type == QEvent::Wheel) return expectChoice(qobject_cast<PopUpButton*>(hit));
  if (type == QEvent::Drop) return expectTyping(hit);
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease) return;
  const auto* mouse = static_cast<QMouseEvent*>(event);
  // The other buttons paste, or open a menu that does.
  if (mouse->button() != Qt::LeftButton) return expectTyping(hit);
  if (type == QEvent::MouseButtonRelease) return onRelease(hit);
  onPress(hit, mouse->modifiers());
}

void InputRecorder::onListInput(QWidget* list, const QEvent& event) {
  PopUpButton* button = pluginwindow::popUpOf(list);
  // A menu may change the text that it was opened for.
  if (!button) return expectTyping(m_window->focusWidget());
  bool isChoosing = event.type() == QEvent::MouseButtonRelease;
  if (event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(event);
    m_listKey = key.key();
    isChoosing = isKeyOf(key, {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select});
  }
  if (isChoosing) expectChoice(button);
}

void InputRecorder::onPress(QWidget* hit, Qt::KeyboardModifiers modifiers) {
  m_click = {};  // the one before was never released
  flush();
  m_pressed = hit;
  // A pop-up's choice is written when it is made.
  if (!hit->isEnabled() || qobject_cast<PopUpButton*>(hit)) return;
  const QAction* pane = pluginwindow::paneOf(*m_window, hit);
  const QString name = pane ? pane->text() : pluginwindow::clickableNameOf(*m_window, hit);
  if (name.isNull())
    return writeUnnamed(QStringLiteral("a click on %1").arg(QLatin1String(hit->metaObject()->className())));
  m_click = {{pane ? "pane" : "click", name}};
  if (modifiers.testFlag(Qt::ShiftModifier)) m_click.emplaceBack("shift", true);
}

void InputRecorder::onRelease(QWidget* hit) {
  const Line click = std::exchange(m_click, {});
  const bool isClick = hit == m_pressed && !click.isEmpty();
  m_pressed = nullptr;
  if (isClick) write(click);
}

void InputRecorder::onKey(const QKeyEvent& key) {
  const bool isTaken = key.key() == std::exchange(m_listKey, 0);
  if (isTaken || isModifierKey(key)) return;
  QWidget* focus = m_window->focusWidget();
  if (qobject_cast<QLineEdit*>(focus) && isEditing(key)) return expectTyping(focus);
  const bool isSpace = key.key() == Qt::Key_Space || key.key() == Qt::Key_Select;
  if (const QAction* pane = isSpace ? pluginwindow::paneOf(*m_window, focus) : nullptr)
    return write({{"pane", pane->text()}});
  auto* button = qobject_cast<PopUpButton*>(focus);
  if (button &&
      !isKeyOf(key, {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) &&
      !key.modifiers().testFlag(Qt::ControlModifier))
    return expectChoice(button);
  const QString name = keynames::nameOf(key.key(), key.modifiers());
  if (name.isNull()) return writeUnnamed(QStringLiteral("a key without a name"));
  Line step = {{"key", name}};
  const QString place = focus ? pluginwindow::nameOf(*m_window, focus) : QString();
  if (!place.isNull()) step.emplaceBack("in", place);
  const QStringList modifiers = keynames::namesOf(key.modifiers());
  if (!modifiers.isEmpty()) step.emplaceBack("modifiers", QJsonArray::fromStringList(modifiers));
  write(step);
}

// The text is written as one step when another input or an effect follows.
void InputRecorder::expectTyping(QWidget* widget) {
  auto* field = qobject_cast<QLineEdit*>(widget);
  const QString name = field ? pluginwindow::nameOf(*m_window, field) : QString();
  if (name.isNull()) return;
  if (field != m_field || name != m_fieldName) flush();
  m_field = field;
  m_fieldName = name;
  if (!m_typedText) m_textBefore = field->text();
  m_mayBeTyping = true;
}

void InputRecorder::readTypedText() {
  if (!m_mayBeTyping || !m_field) return;
  if (m_typedText || m_field->text() != m_textBefore) m_typedText = m_field->text();
}

void InputRecorder::expectChoice(PopUpButton* button) {
  m_choosing = button;
  if (!button) return;
  m_choosingName = pluginwindow::nameOf(*m_window, button);
  m_titleBefore = button->title();
}

void InputRecorder::writeChoice() {
  const QString item = m_choosing->currentText();
  m_choosing = nullptr;
  if (m_choosingName.isNull()) return writeUnnamed(QStringLiteral("a choice"));
  write({{"choose", m_choosingName}, {"item", item}});
}

void InputRecorder::write(const Line& step) {
  flush();
  m_writer->writeStep(step);
}

void InputRecorder::writeUnnamed(const QString& what) {
  flush();
  m_writer->writeUnnamed(what);
}

void InputRecorder::flush() {
  readTypedText();
  if (m_typedText) {
    const QString text = *std::exchange(m_typedText, {});
    m_textBefore = text;
    // A destroyed field may have been a password field.
    const bool isSecret = !m_field || m_field->echoMode() != QLineEdit::Normal;
    if (isSecret) {
      m_writer->writePassword(m_fieldName, text);
    } else {
      m_writer->writeStep({{"type", m_fieldName}, {"text", text}});
    }
  }
  if (!m_click.isEmpty()) m_writer->writeStep(std::exchange(m_click, {}));
  if (m_choosing) writeChoice();
}
