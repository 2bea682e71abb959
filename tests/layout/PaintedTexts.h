#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>

class QWidget;

// A line of text as a view painted it, in the view's coordinates.
struct PaintedText {
  QString text;
  QFont font;
  QColor color;
  double left;
  double right;
  double baseline;
  QRectF ink;
  QRectF clip;  // what is outside is not seen
};

// All texts that the view and the visible views in it paint.
QList<PaintedText> paintedTexts(QWidget& view);
