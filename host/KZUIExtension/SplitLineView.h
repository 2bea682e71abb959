#pragma once

#include <QPainter>
#include <QWidget>
#include <cmath>

#include "host/KZFoundation/KZHostExport.h"

// A thin line between two groups.
class KZ_HOST_EXPORT SplitLineView : public QWidget {
  Q_OBJECT

 public:
  SplitLineView() { setAttribute(Qt::WA_TransparentForMouseEvents); }

 protected:
  void paintEvent(QPaintEvent*) override {
    // Whole pixels of the device, so that all lines are equally thick at every scale.
    const double thickness = std::floor(devicePixelRatioF()) / devicePixelRatioF();
    const QRectF line(0, std::floor((height() - 1) / 2.0), width(), thickness);
    QPainter(this).fillRect(line, palette().color(QPalette::Mid));
  }
};
