#include "platform/LookStyle.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>

#include "platform/LookStyleParts.h"

namespace {

void dressList(QWidget* list, const QComboBox& popUp) {
  for (QWidget* part : list->findChildren<QWidget*>()) part->setStyle(popUp.style());
  list->setStyle(popUp.style());
  list->setPalette(popUp.palette());
  popUp.view()->setPalette(popUp.palette());
}

}  // namespace

LookStyle::LookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void LookStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QLineEdit*>(widget)) widget->setAttribute(Qt::WA_Hover);
  if (qobject_cast<QComboBox*>(widget)) widget->installEventFilter(this);
  if (!qobject_cast<QToolBar*>(widget)) return;
  widget->setContentsMargins(lookToolbar::kSideMargin, 0, lookToolbar::kSideMargin, 0);
  for (QToolButton* item : widget->findChildren<QToolButton*>()) item->setStyle(this);
}

void LookStyle::unpolish(QWidget* widget) {
  widget->removeEventFilter(this);
  QProxyStyle::unpolish(widget);
}

bool LookStyle::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ChildPolished) {
    auto* popUp = qobject_cast<QComboBox*>(watched);
    auto* list = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child());
    if (popUp && list && list->isWindow()) dressList(list, *popUp);
  }
  return QProxyStyle::eventFilter(watched, event);
}
