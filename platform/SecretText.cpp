#include "platform/SecretText.h"

#include <QAccessible>
#include <QLineEdit>

namespace {

QAccessible::UpdateHandler s_earlierHandler = nullptr;

// The toolkit's own handling can only be reached with this handler away. The host may have put another one in
// front of it.
void passOn(QAccessibleEvent* event) {
  const QAccessible::UpdateHandler installed = QAccessible::installUpdateHandler(s_earlierHandler);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(installed);
}

QString bulletsFor(const QString& text) {
  return QString(text.size(), QChar(0x2022));
}

template <typename TextEvent>
void passOnWith(TextEvent&& masked, const QAccessibleTextCursorEvent& told) {
  masked.setCursorPosition(told.cursorPosition());
  passOn(&masked);
}

void tellMasked(QAccessibleEvent* event) {
  const auto* field = qobject_cast<const QLineEdit*>(event->object());
  if (!field || field->echoMode() == QLineEdit::Normal) return passOn(event);
  if (event->type() == QAccessible::TextInserted) {
    const auto& told = *static_cast<QAccessibleTextInsertEvent*>(event);
    return passOnWith(
        QAccessibleTextInsertEvent(told.object(), told.changePosition(), bulletsFor(told.textInserted())),
        told);
  }
  if (event->type() == QAccessible::TextRemoved) {
    const auto& told = *static_cast<QAccessibleTextRemoveEvent*>(event);
    return passOnWith(
        QAccessibleTextRemoveEvent(told.object(), told.changePosition(), bulletsFor(told.textRemoved())),
        told);
  }
  if (event->type() == QAccessible::TextUpdated) {
    const auto& told = *static_cast<QAccessibleTextUpdateEvent*>(event);
    return passOnWith(
        QAccessibleTextUpdateEvent(told.object(), told.changePosition(), bulletsFor(told.textRemoved()),
                                   bulletsFor(told.textInserted())),
        told);
  }
  passOn(event);
}

}  // namespace

void maskSecretText() {
  static const bool isInstalled = [] {
    s_earlierHandler = QAccessible::installUpdateHandler(tellMasked);
    return true;
  }();
  Q_UNUSED(isInstalled);
}
