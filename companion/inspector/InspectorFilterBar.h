#pragma once

#include <QList>
#include <QWidget>

#include "companion/inspector/InspectorFilter.h"

class QCheckBox;

// Which kinds of events are shown, in groups that a newcomer tells apart.
class InspectorFilterBar final : public QWidget {
  Q_OBJECT

 public:
  InspectorFilterBar();

  std::set<InspectorEvent::Kind> hiddenKinds() const;

 Q_SIGNALS:
  void changed();

 private:
  QList<QCheckBox*> m_boxes;  // in the order of the groups
};
