#pragma once

#include <QLabel>

#include "platform/Frame.h"
#include "platform/LookPalette.h"
#include "platform/PlatformExport.h"
#include "platform/Text.h"

// A text that cannot be edited or selected, in one line; with word wrap in as many as it needs. What does not
// fit ends in "…"; the tool tip shows all of it.
class PLATFORM_EXPORT StaticText : public QLabel {
  Q_OBJECT

 public:
  StaticText(const QString& text, FontRole role, double size, Qt::Alignment alignment = Qt::AlignLeft);

  void setSystemColor(SystemColor color);
  SystemColor systemColor() const { return m_color; }
  // Draws the text there instead of where its alignment says.
  void setDrawnAlignment(Qt::Alignment alignment);

  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  struct Shown {
    QStringList lines;
    bool isWhole = true;
  };

  QRectF visiblePart() const;
  Shown shown() const;
  QStringList linesFor(double width) const;

  SystemColor m_color = SystemColor::Text;
  Qt::Alignment m_drawnAlignment;
};
