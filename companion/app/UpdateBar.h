#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class UpdateService;

// Shows a check for updates while it runs, and what it found; hidden otherwise.
class UpdateBar final : public QWidget {
  Q_OBJECT

 public:
  explicit UpdateBar(UpdateService* updates);

  // After what the window has by now.
  void comeLastInTabOrder();  // not owned; must outlive the bar

 private:
  void showStart();
  void showProgress(qint64 bytes, qint64 ofBytes);
  void showOffer(const QString& text);

  QLabel* m_text;
  QProgressBar* m_progress;
  QPushButton* m_download;
  QPushButton* m_cancel;
};
