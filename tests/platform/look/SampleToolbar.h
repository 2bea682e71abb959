#pragma once

#include <QActionGroup>
#include <QToolBar>

#include "host/KZUIExtension/KZRetinaHelper.h"
#include "platform/Look.h"

inline const QString kSampleImages = QStringLiteral(":/sample/images");

// A toolbar like that of a preferences window, with the third item selected.
inline QToolBar* sampleToolbar(QWidget* window) {
  auto* toolbar = new QToolBar(window);
  toolbar->setMovable(false);
  toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  toolbar->setStyle(lookStyle());
  auto* group = new QActionGroup(toolbar);
  const QList<std::pair<QString, QString>> items{{"General", "preference_general"},
                                                 {"Account", "preference_account"},
                                                 {"Meetings", "preference_meeting"},
                                                 {"Notifications", "preference_notification"},
                                                 {"Video devices", "preference_proximity"}};
  for (const auto& [text, image] : items) {
    QAction* item =
        toolbar->addAction(KZRetinaHelper::shareInstance().newPNGImageInBundle(kSampleImages, image), text);
    item->setCheckable(true);
    group->addAction(item);
    toolbar->widgetForAction(item)->setStyle(lookStyle());
    toolbar->widgetForAction(item)->setFocusPolicy(Qt::TabFocus);
  }
  toolbar->actions().at(2)->setChecked(true);
  return toolbar;
}
