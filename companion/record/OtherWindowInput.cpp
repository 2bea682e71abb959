#include "companion/record/OtherWindowInput.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "companion/format/KeyNames.h"

namespace {

// By name, since the second one's class stays inside of the plug-in.
bool isOtherWindow(const QWidget& window) {
  return window.inherits("KZWarningWindow") || window.inherits("ADSignInDialog");
}

QString classNameOf(const QWidget& widget) {
  return QString::fromLatin1(widget.metaObject()->className());
}

QString placeIn(const QWidget& window, const QWidget* widget) {
  const QString name = widget && widget != &window ? widget->objectName() : QString();
  if (!name.isEmpty()) return QStringLiteral("%1 in %2").arg(name, classNameOf(window));
  if (!widget || widget == &window) return classNameOf(window);
  return QStringLiteral("%1 in %2").arg(classNameOf(*widget), classNameOf(window));
}

}  // namespace

QString OtherWindowInput::describe(QWidget* target, const QEvent& event) {
  const QWidget& window = *target->window();
  if (!isOtherWindow(window)) return {};
  switch (event.type()) {
    case QEvent::MouseButtonPress: {
      m_typedInto = nullptr;
      const QPoint place = static_cast<const QMouseEvent&>(event).position().toPoint();
      return QStringLiteral("a click on ") + placeIn(window, target->childAt(place));
    }
    case QEvent::KeyPress: {
      const auto& key = static_cast<const QKeyEvent&>(event);
      static const auto keys = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab};
      if (std::ranges::find(keys, key.key()) == keys.end()) return typingIn(window);
      m_typedInto = nullptr;
      return QStringLiteral("the key %1 on ").arg(keynames::nameOf(key.key(), {})) +
             placeIn(window, window.focusWidget());
    }
    case QEvent::InputMethod:
    case QEvent::Drop:
      return typingIn(window);
    default:
      return {};
  }
}

// One line, however much it is.
QString OtherWindowInput::typingIn(const QWidget& window) {
  const QWidget* field = window.focusWidget() ? window.focusWidget() : &window;
  if (field == m_typedInto) return {};
  m_typedInto = field;
  return QStringLiteral("keys typed into ") + placeIn(window, field);
}
