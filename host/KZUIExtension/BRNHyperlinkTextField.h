#pragma once

#include <QAbstractButton>
#include <QColor>

#include "host/KZFoundation/KZHostExport.h"

// A clickable text: underlined, in the palette's link colour. Space and Return click it when it has the
// focus.
class KZ_HOST_EXPORT BRNHyperlinkTextField : public QAbstractButton {
  Q_OBJECT

 public:
  enum class NoClickColor { Text, Blue };

  BRNHyperlinkTextField();

  void setUnderlineStyle(int style);  // 0 none, 1 single
  void setNoClickColor(NoClickColor color);
  NoClickColor noClickColor() const { return m_color; }
  void setStringValue(const QString& text) { setText(text); }
  QString stringValue() const { return text(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  QColor currentColor() const;

  int m_underlineStyle = 0;
  NoClickColor m_color = NoClickColor::Text;
};
