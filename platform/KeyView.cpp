#include "platform/KeyView.h"

#include <QKeyEvent>
#include <QPointer>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char kNextKeyViewProperty[] = "platformNextKeyView";
const QString kFirstResponderName = QStringLiteral("platformFirstResponder");

bool canTakeTab(const QWidget* view) {
  return (view->focusPolicy() & Qt::TabFocus) && view->isVisible() && view->isEnabled();
}

// The views that Tab circles through; empty when it leads elsewhere.
QList<const QWidget*> ringOf(const QWidget* view) {
  QList<const QWidget*> ring;
  for (const QWidget* at = view; at && !ring.contains(at); at = nextKeyViewOf(at)) ring.append(at);
  return nextKeyViewOf(ring.last()) == view ? ring : QList<const QWidget*>();
}

QWidget* nextOutsideRing(const QWidget* view) {
  const QList<const QWidget*> ring = ringOf(view);
  if (ring.isEmpty()) return nullptr;
  QWidget* next = view->nextInFocusChain();
  while (next != view && (ring.contains(next) || !canTakeTab(next))) next = next->nextInFocusChain();
  return next == view ? nullptr : next;
}

// Moves the focus at Tab to the view that was set as the next one.
class KeyViewLink final : public QObject {
 public:
  explicit KeyViewLink(QWidget* from) : QObject(from) { from->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Tab) return false;
    const auto* view = static_cast<QWidget*>(watched);
    QWidget* next = nullptr;
    if (key->modifiers() == Qt::NoModifier) next = nextKeyViewOf(view);
    if (key->modifiers() == Qt::ControlModifier) next = nextOutsideRing(view);
    if (!next || !next->isVisible() || !next->isEnabled()) return false;
    if (event->type() == QEvent::KeyPress) next->setFocus(Qt::TabFocusReason);
    event->accept();
    return true;
  }
};

// Keeps the focus for a view until it is hidden itself, not only with its pane.
class FirstResponder final : public QObject {
 public:
  explicit FirstResponder(QWidget* view) : QObject(view) {
    setObjectName(kFirstResponderName);
    view->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) static_cast<QWidget*>(watched)->setFocus(Qt::OtherFocusReason);
    if (event->type() == QEvent::HideToParent) deleteLater();
    return false;
  }
};

QObject* firstResponderOf(const QWidget* view) {
  return view->findChild<QObject*>(kFirstResponderName, Qt::FindDirectChildrenOnly);
}

}  // namespace

void setNextKeyView(QWidget* from, QWidget* to) {
  if (!from->property(kNextKeyViewProperty).isValid()) new KeyViewLink(from);
  from->setProperty(kNextKeyViewProperty, QVariant::fromValue(QPointer<QWidget>(to)));
}

QWidget* nextKeyViewOf(const QWidget* view) {
  return view->property(kNextKeyViewProperty).value<QPointer<QWidget>>();
}

void makeFirstResponder(QWidget* view) {
  delete firstResponderOf(view);
  new FirstResponder(view);
  if (view->isVisible()) view->setFocus(Qt::OtherFocusReason);
}

void clearFirstResponder(QWidget* window) {
  QWidget* focused = window->focusWidget();
  if (focused && !firstResponderOf(focused)) focused->clearFocus();
}
