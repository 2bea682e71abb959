#pragma once

#include <QLabel>

#include "host/KZFoundation/KZHostExport.h"

// A notice inside a pane: a coloured strip with an icon and a text that wraps. It is at its parent's upper
// edge, as wide as the parent and as high as the text needs.
class KZ_HOST_EXPORT MarigoldWarningView : public QWidget {
  Q_OBJECT

 public:
  MarigoldWarningView();

  void setIsInfo(bool isInfo);  // information instead of a warning
  void setWarningText(const QString& text);
  QString warningText() const;

  // The height that the text needs at that width.
  int heightForWidth(int width) const override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void place();
  void placeText();

  QLabel* m_text;
  bool m_isInfo = false;
};
