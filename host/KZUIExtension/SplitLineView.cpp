#include "host/KZUIExtension/SplitLineView.h"

#include <QPainter>

SplitLineView::SplitLineView() {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void SplitLineView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(0, (height() - 1) / 2, width(), 1, palette().color(QPalette::Mid));
}
