#pragma once

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;
class TelemetryService;

// Shows the telemetry records, and lets the user switch them off and delete them.
class TelemetryView final : public QWidget {
  Q_OBJECT

 public:
  explicit TelemetryView(TelemetryService* telemetry);  // not owned; must outlive the view

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* createBar();
  void showSoon();
  void showRecords();

  TelemetryService* m_telemetry;
  QCheckBox* m_isOn;
  QPushButton* m_delete;
  QLabel* m_text;
  QTableWidget* m_table;
  QTimer m_soon;
};
