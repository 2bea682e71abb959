#pragma once

#include <QList>
#include <QWidget>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"
#include "platform/Text.h"

// A text that a view paints by itself.
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

  // What the view paints by itself, from bottom to top of the drawing order; screen readers read it too.
  virtual QList<DrawnText> drawnTexts() const;

 protected:
  // The view became visible: it was shown, or its window was.
  virtual void viewDidUnhide();
  // Call after a change of `drawnTexts`.
  void drawnTextsChanged();

  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
};
