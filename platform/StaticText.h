#pragma once

#include <QLabel>

#include "platform/Frame.h"
#include "platform/LookPalette.h"
#include "platform/PlatformExport.h"
#include "platform/Text.h"

// A one-line text that cannot be edited or selected. A text that does not fit ends in "…"; the tool tip shows
// all of it.
class PLATFORM_EXPORT StaticText : public QLabel {
  Q_OBJECT

 public:
  StaticText(const QString& text, FontRole role, double size, Qt::Alignment alignment = Qt::AlignLeft);

  void setSystemColor(SystemColor color);
  SystemColor systemColor() const { return m_color; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QRect visiblePart() const;

  SystemColor m_color = SystemColor::Text;
};
