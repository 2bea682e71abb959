#pragma once

#include <QWidget>

#include "companion/inspector/InspectorLog.h"

class InspectorFilter;
class QPlainTextEdit;
class QPushButton;
class QTableView;

// The live list: filtered by kinds and text, one event in whole beside it; can be paused, copied, cleared and
// exported.
class InspectorView final : public QWidget {
  Q_OBJECT

 public:
  explicit InspectorView(InspectorLog* log);  // not owned; must outlive the view

  void exportTo(const QString& path);  // every row that is shown

 Q_SIGNALS:
  void message(const QString& text);  // for the user

 private:
  void setUpTable();
  QWidget* createBoxes();
  QWidget* createBar();
  QWidget* createLists();
  void togglePause();
  void showWaiting(qsizetype count);
  void showDetails(const QModelIndex& current);
  void copy();
  void askForFile();

  InspectorLog* m_log;
  InspectorFilter* m_filter;
  QTableView* m_table;
  QPlainTextEdit* m_details;
  QPushButton* m_pause = nullptr;
};
