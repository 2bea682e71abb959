#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The window of KZWarningWindowController.
class KZWarningWindow final : public QWidget {
  Q_OBJECT

 public:
  KZWarningWindow();

  void setTexts(const QString& title, const QString& message);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fitMessage();

  QLabel* m_title;
  QPlainTextEdit* m_message;
  QPushButton* m_ok;
};
