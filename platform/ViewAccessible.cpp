#include "platform/ViewAccessible.h"

#include <algorithm>

#include "platform/Accessible.h"
#include "platform/PopUpButton.h"
#include "platform/PopUpButtonAccessible.h"
#include "platform/View.h"

namespace {

class DrawnTextAccessible final : public QAccessibleInterface {
 public:
  DrawnTextAccessible(View* view, qsizetype index) : m_view(view), m_index(index) {}

  bool isValid() const override { return m_index < m_view->drawnTexts().size(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? drawn().text : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    return m_view->boxOf(drawn()).toAlignedRect().translated(m_view->mapToGlobal(QPoint()));
  }
  QAccessible::Role role() const override {
    return drawn().role == FontRole::BoldSystem ? QAccessible::Heading : QAccessible::StaticText;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    state.invisible = !m_view->isVisible();
    return state;
  }

 private:
  DrawnText drawn() const { return m_view->drawnTexts().value(m_index); }

  View* m_view;
  qsizetype m_index;
};

// A row reaches as far down as the first one in it.
void sortByRows(QList<QAccessibleInterface*>& children, Qt::LayoutDirection direction) {
  const auto middle = [](const QAccessibleInterface* child) { return child->rect().center().y(); };
  std::ranges::stable_sort(children, {}, middle);
  for (auto row = children.begin(); row != children.end();) {
    const int bottom = (*row)->rect().bottom();
    const auto next =
        std::find_if(row + 1, children.end(), [=](auto* child) { return middle(child) > bottom; });
    std::stable_sort(row, next, [direction](const auto* one, const auto* other) {
      return direction == Qt::RightToLeft ? one->rect().right() > other->rect().right()
                                          : one->rect().left() < other->rect().left();
    });
    row = next;
  }
}

}  // namespace

void ViewAccessible::install() {
  QAccessible::installFactory(made);  // once: it ignores one that it has
}

QAccessibleInterface* ViewAccessible::made(const QString& /*className*/, QObject* object) {
  if (auto* button = qobject_cast<PopUpButton*>(object)) return new PopUpButtonAccessible(button);
  auto* view = qobject_cast<View*>(object);
  return view ? new ViewAccessible(view) : nullptr;
}

ViewAccessible::ViewAccessible(View* view) : QAccessibleWidget(view) {}

ViewAccessible::~ViewAccessible() {
  for (const QAccessible::Id text : std::as_const(m_texts)) QAccessible::deleteAccessibleInterface(text);
}

const View* ViewAccessible::view() const {
  return static_cast<const View*>(widget());
}

QList<QAccessibleInterface*> ViewAccessible::children() const {
  const qsizetype texts = view()->drawnTexts().size();
  while (m_texts.size() < texts) {
    auto* text = new DrawnTextAccessible(static_cast<View*>(widget()), m_texts.size());
    m_texts.append(QAccessible::registerAccessibleInterface(text));
  }
  QList<QAccessibleInterface*> all;
  for (qsizetype i = 0; i < texts; ++i) all.append(QAccessible::accessibleInterface(m_texts[i]));
  for (int i = 0; i < QAccessibleWidget::childCount(); ++i) all.append(QAccessibleWidget::child(i));
  sortByRows(all, view()->layoutDirection());
  return all;
}

QAccessible::Role ViewAccessible::role() const {
  const QAccessible::Role role = accessibleRoleOf(widget());
  return role == QAccessible::NoRole ? QAccessibleWidget::role() : role;
}

int ViewAccessible::childCount() const {
  return QAccessibleWidget::childCount() + static_cast<int>(view()->drawnTexts().size());
}

QAccessibleInterface* ViewAccessible::child(int index) const {
  return children().value(index);
}

int ViewAccessible::indexOfChild(const QAccessibleInterface* child) const {
  return static_cast<int>(children().indexOf(child));
}
