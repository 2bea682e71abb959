#include "platform/LookStyle.h"

#include <QLineEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>

LookStyle::LookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void LookStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QLineEdit*>(widget)) widget->setAttribute(Qt::WA_Hover);
  if (!qobject_cast<QToolBar*>(widget)) return;
  // The extension button is the bar's own; nobody else can dress it.
  for (QToolButton* item : widget->findChildren<QToolButton*>()) item->setStyle(this);
}
