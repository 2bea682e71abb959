#pragma once

#include <QTimer>
#include <QWidget>

class NextMeetings;
class QLabel;
class QPushButton;
class QTableWidget;

// The next meetings, the first on top; one that starts soon is highlighted.
class MeetingsView final : public QWidget {
  Q_OBJECT

 public:
  explicit MeetingsView(NextMeetings* meetings);  // not owned; must outlive the view

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void showMeetings();

  NextMeetings* m_meetings;
  QLabel* m_text;
  QPushButton* m_refresh;
  QTableWidget* m_table;
  QTimer m_minute;
};
