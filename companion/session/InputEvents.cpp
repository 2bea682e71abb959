#include "companion/session/InputEvents.h"

#include <QChar>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <array>
#include <utility>

namespace inputevents {
namespace {

constexpr qsizetype kKeyByKeyLimit = 2000;

// Later than the last click by more than a double click takes.
int nextTimestamp() {
  static int timestamp = 0;
  timestamp += 1000;
  return timestamp;
}

constexpr auto kModifierKeys = std::to_array<std::pair<Qt::KeyboardModifier, Qt::Key>>({
    {Qt::ShiftModifier, Qt::Key_Shift},
    {Qt::ControlModifier, Qt::Key_Control},
    {Qt::AltModifier, Qt::Key_Alt},
    {Qt::MetaModifier, Qt::Key_Meta},
});

void sendKey(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
             const QString& text = {}) {
  if (window) qt_handleKeyEvent(window, type, key, modifiers, text);
}

// Holds the modifier keys for its life; the window may go meanwhile.
class HeldModifiers final {
 public:
  HeldModifiers(QWindow* window, Qt::KeyboardModifiers modifiers) : m_window(window), m_modifiers(modifiers) {
    Qt::KeyboardModifiers held;
    for (const auto& [modifier, key] : kModifierKeys) {
      if (!m_modifiers.testFlag(modifier)) continue;
      sendKey(m_window, QEvent::KeyPress, key, held);
      held |= modifier;
    }
  }

  ~HeldModifiers() {
    for (const auto& [modifier, key] : kModifierKeys) {
      if (!m_modifiers.testFlag(modifier)) continue;
      m_modifiers.setFlag(modifier, false);
      sendKey(m_window, QEvent::KeyRelease, key, m_modifiers);
    }
  }

  Q_DISABLE_COPY_MOVE(HeldModifiers)

 private:
  QPointer<QWindow> m_window;
  Qt::KeyboardModifiers m_modifiers;
};

QString textOfKey(int key, Qt::KeyboardModifiers modifiers) {
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return QStringLiteral("\r");
  if (key == Qt::Key_Tab) return QStringLiteral("\t");
  if (key == Qt::Key_Escape) return QStringLiteral("\x1b");
  if (key < Qt::Key_Space || key > 0xffff) return {};
  // As X11 has it: Control turns a letter into its control character.
  const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
  if (isLetter && modifiers.testFlag(Qt::ControlModifier))
    return QString(QChar(static_cast<char16_t>(key & 0x1f)));
  const QChar character(static_cast<char16_t>(key));
  return modifiers.testFlag(Qt::ShiftModifier) ? character : character.toLower();
}

int keyOfCharacter(char32_t character) {
  if (character == U'\n' || character == U'\r') return Qt::Key_Return;
  if (character == U'\t') return Qt::Key_Tab;
  return character < 0x10000 ? static_cast<int>(QChar::toUpper(character))
                             : static_cast<int>(Qt::Key_unknown);
}

}  // namespace

void click(QWindow* window, const QPoint& place, Qt::KeyboardModifiers modifiers) {
  const HeldModifiers held(window, modifiers);
  const QPointer<QWindow> alive(window);
  const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons pressed) {
    if (!alive) return;
    qt_handleMouseEvent(alive, place, alive->mapToGlobal(place), pressed, button, type, modifiers,
                        nextTimestamp());
  };
  send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
}

void pressKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers) {
  pressKey(window, key, modifiers, textOfKey(key, modifiers));
}

void pressKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const HeldModifiers held(window, modifiers);
  const QPointer<QWindow> alive(window);
  sendKey(alive, QEvent::KeyPress, key, modifiers, text);
  sendKey(alive, QEvent::KeyRelease, key, modifiers, text);
}

void typeText(QWindow* window, const QString& text) {
  const QPointer<QWindow> alive(window);
  qsizetype place = 0;
  while (alive && place < text.size() && place < kKeyByKeyLimit) {
    const bool isPair =
        text.at(place).isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
    const QString character = text.mid(place, isPair ? 2 : 1);
    const int key = keyOfCharacter(character.toUcs4().first());
    pressKey(alive, key, Qt::NoModifier, key == Qt::Key_Return ? QStringLiteral("\r") : character);
    place += character.size();
  }
  if (alive && place < text.size()) pressKey(alive, Qt::Key_unknown, Qt::NoModifier, text.mid(place));
}

}  // namespace inputevents
