#pragma once

#include <QComboBox>

#include "platform/PlatformExport.h"

// A pop-up button shows a title that need not be one of its items.
class PLATFORM_EXPORT PopUpButton : public QComboBox {
  Q_OBJECT

 public:
  explicit PopUpButton(const QStringList& items);

  void setTitle(const QString& title);
  QString title() const;

  void showPopup() override;

 Q_SIGNALS:
  void chosen(const QString& title);  // by the user only

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString m_foreignTitle;
  bool m_hasList = false;
};
