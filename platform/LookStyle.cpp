#include "platform/LookStyle.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>

#include "platform/LookPalette.h"

namespace {

// The list of a pop-up button is a window of its own, which inherits neither style nor palette.
void dressList(const QComboBox& popUp) {
  const QPalette& palette = lookPalette(lookSchemeFor(popUp.palette()));
  QWidget* list = popUp.view()->window();
  if (list == popUp.window()) return;
  for (QWidget* part : list->findChildren<QWidget*>()) part->setStyle(popUp.style());
  list->setStyle(popUp.style());
  list->setPalette(palette);
  popUp.view()->setPalette(palette);
}

}  // namespace

LookStyle::LookStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void LookStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QLineEdit*>(widget)) widget->setAttribute(Qt::WA_Hover);
  if (auto* popUp = qobject_cast<QComboBox*>(widget)) {
    dressList(*popUp);
    popUp->installEventFilter(this);
  }
  if (!qobject_cast<QToolBar*>(widget)) return;
  // The extension button is the bar's own; nobody else can dress it.
  for (QToolButton* item : widget->findChildren<QToolButton*>()) item->setStyle(this);
}

void LookStyle::unpolish(QWidget* widget) {
  widget->removeEventFilter(this);
  QProxyStyle::unpolish(widget);
}

bool LookStyle::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::PaletteChange) {
    if (const auto* popUp = qobject_cast<QComboBox*>(watched)) dressList(*popUp);
  }
  return QProxyStyle::eventFilter(watched, event);
}
