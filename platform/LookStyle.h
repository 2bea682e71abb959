#pragma once

#include <QProxyStyle>

// Draws the controls; each kind has a unit of its own (LookStyleButtons.cpp, …). Colours come from the
// palette that a control is drawn with, so that a new palette is all that a change of scheme needs.
class LookStyle final : public QProxyStyle {
  Q_OBJECT

 public:
  LookStyle();

  void polish(QWidget* widget) override;
  using QProxyStyle::polish;

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returnData) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl subControl,
                       const QWidget* widget) const override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
};
