#include "platform/KeyView.h"

#include <QKeyEvent>
#include <QPointer>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char kNextKeyViewProperty[] = "platformNextKeyView";

// Moves the focus at Tab to the view that was set as the next one.
class KeyViewLink final : public QObject {
 public:
  explicit KeyViewLink(QWidget* from) : QObject(from) { from->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Tab || key->modifiers() != Qt::NoModifier) return false;
    QWidget* next = nextKeyViewOf(static_cast<QWidget*>(watched));
    if (!next || !next->isVisible() || !next->isEnabled()) return false;
    next->setFocus(Qt::TabFocusReason);
    return true;
  }
};

}  // namespace

void setNextKeyView(QWidget* from, QWidget* to) {
  if (!from->property(kNextKeyViewProperty).isValid()) new KeyViewLink(from);
  from->setProperty(kNextKeyViewProperty, QVariant::fromValue(QPointer<QWidget>(to)));
}

QWidget* nextKeyViewOf(const QWidget* view) {
  return view->property(kNextKeyViewProperty).value<QPointer<QWidget>>();
}
