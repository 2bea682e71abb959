#pragma once

#include <QList>
#include <QWidget>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"
#include "platform/Text.h"

// A text that a view paints itself.
struct DrawnText {
  QString text;
  Frame frame;
  FontRole role = FontRole::Label;
  double size = 0;
  Qt::Alignment alignment = Qt::AlignLeft;
};

// A view in points, y up. Subviews are added with `addSubview`.
class PLATFORM_EXPORT View : public QWidget {
  Q_OBJECT

 public:
  explicit View(const Frame& frame);
  ~View() override;

  // The texts that the view paints itself, in drawing order.
  virtual QList<DrawnText> drawnTexts() const;
  QRectF boxOf(const DrawnText& drawn) const;  // where it is painted

 protected:
  // The view became visible: it was shown, or its window was.
  virtual void viewDidUnhide();
  // Call after a change of `drawnTexts`.
  void drawnTextsChanged();

  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
};
