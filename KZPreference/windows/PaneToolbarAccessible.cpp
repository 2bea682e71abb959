#include "KZPreference/windows/PaneToolbarAccessible.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QToolBar>
#include <QToolButton>
#include <QVariant>

namespace {

constexpr char kPageTabsProperty[] = "preferencesPageTabs";

QList<QWidget*> tabsOf(const QToolBar* toolbar) {
  QList<QWidget*> tabs;
  const QList<QAction*> items = toolbar->actions();
  for (QAction* item : items)
    if (item->isCheckable()) tabs.append(toolbar->widgetForAction(item));
  return tabs;
}

QToolBar* pageTabs(QObject* object) {
  auto* toolbar = qobject_cast<QToolBar*>(object);
  return toolbar && toolbar->property(kPageTabsProperty).toBool() ? toolbar : nullptr;
}

class PaneTabAccessible final : public QAccessibleWidget {
 public:
  explicit PaneTabAccessible(QToolButton* button) : QAccessibleWidget(button, QAccessible::PageTab) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? button()->text() : QString();
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = state.checked = false;
    state.selectable = true;
    state.selected = button()->isChecked();
    return state;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction()) button()->click();
  }

 private:
  QToolButton* button() const { return static_cast<QToolButton*>(widget()); }
};

// Its children are the items alone: not the spaces between them, nor the button for those without room.
class PaneTabListAccessible final : public QAccessibleWidget {
 public:
  explicit PaneTabListAccessible(QToolBar* toolbar) : QAccessibleWidget(toolbar, QAccessible::PageTabList) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? widget()->window()->windowTitle() : QString();
  }

  int childCount() const override { return static_cast<int>(tabs().size()); }
  QAccessibleInterface* child(int place) const override {
    return QAccessible::queryAccessibleInterface(tabs().value(place));
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(tabs().indexOf(child->object()));
  }

 private:
  QList<QWidget*> tabs() const { return tabsOf(static_cast<QToolBar*>(widget())); }
};

// A button is asked for before the toolbar has it, so its class decides: the button for the items without
// room has a class of its own.
QAccessibleInterface* pageTabsAccessible(const QString& /*className*/, QObject* object) {
  if (QToolBar* toolbar = pageTabs(object)) return new PaneTabListAccessible(toolbar);
  const bool isItem = object && object->metaObject() == &QToolButton::staticMetaObject;
  return isItem && pageTabs(object->parent()) ? new PaneTabAccessible(static_cast<QToolButton*>(object))
                                              : nullptr;
}

}  // namespace

void showAsPageTabs(QToolBar* toolbar) {
  static const bool isInstalled = [] {
    QAccessible::installFactory(pageTabsAccessible);
    return true;
  }();
  Q_UNUSED(isInstalled);
  toolbar->setProperty(kPageTabsProperty, true);
}
