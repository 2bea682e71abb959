#include "KZPreference/windows/PaneToolbar.h"

#include <QAction>
#include <QActionGroup>
#include <QKeyEvent>

#include "KZPreference/windows/PaneToolbarAccessible.h"
#include "platform/Accessible.h"

PaneToolbar::PaneToolbar(QWidget* window) : QToolBar(window), m_items(new QActionGroup(this)) {
  showAsPageTabs(this);
  setObjectName(QStringLiteral("LWPreferencesToolbar"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  setStyle(window->style());
}

void PaneToolbar::addItem(QAction* item) {
  item->setCheckable(true);
  m_items->addAction(item);
  addAction(item);
  QWidget* button = widgetForAction(item);
  button->setStyle(style());
  button->installEventFilter(this);
  renewAccessible(button);
  // The item that was selected before is deselected first, with none selected meanwhile.
  connect(item, &QAction::toggled, this, [this](bool isSelected) {
    if (isSelected) updateTabStop();
  });
  updateTabStop();
}

void PaneToolbar::addFlexibleSpace() {
  auto* space = new QWidget;
  space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  addWidget(space);
}

QAction* PaneToolbar::selectedItem() const {
  return m_items->checkedAction();
}

QList<QAction*> PaneToolbar::items() const {
  QList<QAction*> items = actions();
  items.removeIf([this](const QAction* item) { return item->actionGroup() != m_items; });
  return items;
}

bool PaneToolbar::hasKeyboard() const {
  const QWidget* focused = window()->focusWidget();
  return focused && isAncestorOf(focused);
}

void PaneToolbar::chooseItem(qsizetype place) {
  const QList<QAction*> items = this->items();
  if (place >= 0 && place < items.size()) items.at(place)->trigger();
}

void PaneToolbar::chooseNeighbour(int step, AtEnd atEnd) {
  const QList<QAction*> items = this->items();
  const qsizetype place = items.indexOf(selectedItem()) + step;
  chooseItem(atEnd == AtEnd::Wrap && !items.isEmpty() ? (place + items.size()) % items.size() : place);
}

bool PaneToolbar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QToolBar::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  return !(key->modifiers() & ~Qt::KeypadModifier) && chooseByKey(key->key());
}

bool PaneToolbar::chooseByKey(int key) {
  const int forward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      chooseNeighbour(key == forward ? 1 : -1, AtEnd::Stop);
      return true;
    case Qt::Key_Home:
      chooseItem(0);
      return true;
    case Qt::Key_End:
      chooseItem(items().size() - 1);
      return true;
    default:
      return false;
  }
}

// The focus goes with the selection while it is in the toolbar.
void PaneToolbar::updateTabStop() {
  const QList<QAction*> items = this->items();
  const QAction* stop = selectedItem() ? selectedItem() : items.value(0);
  const bool hadKeyboard = hasKeyboard();
  for (QAction* item : items) {
    QWidget* button = widgetForAction(item);
    button->setFocusPolicy(item == stop ? Qt::TabFocus : Qt::NoFocus);
    if (item == stop && hadKeyboard) button->setFocus(Qt::TabFocusReason);
  }
}
