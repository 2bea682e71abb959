#pragma once

#include <QPainter>
#include <QWidget>

#include "host/KZFoundation/KZHostExport.h"

// A thin line between two groups.
class KZ_HOST_EXPORT SplitLineView : public QWidget {
  Q_OBJECT

 public:
  SplitLineView() { setAttribute(Qt::WA_TransparentForMouseEvents); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(0, (height() - 1) / 2, width(), 1, palette().color(QPalette::Mid));
  }
};
