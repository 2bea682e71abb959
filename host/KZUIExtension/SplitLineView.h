#pragma once

#include <QWidget>

#include "host/KZFoundation/KZHostExport.h"

// A thin line between two groups.
class KZ_HOST_EXPORT SplitLineView : public QWidget {
  Q_OBJECT

 public:
  SplitLineView();

 protected:
  void paintEvent(QPaintEvent* event) override;
};
