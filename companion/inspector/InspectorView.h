#pragma once

#include <QWidget>

#include "companion/inspector/InspectorLog.h"

class InspectorDetails;
class InspectorFilter;
class InspectorTable;
class QLineEdit;
class QPushButton;

// The live list: filtered by kinds and text, one event in whole beside it; can be paused, copied, cleared and
// exported.
class InspectorView final : public QWidget {
  Q_OBJECT

 public:
  enum class Scope { Shown, All };

  explicit InspectorView(InspectorLog* log);  // not owned; must outlive the view

  // The selected rows as lines, or every row that is shown when none is selected.
  QString textToCopy() const;
  void exportTo(const QString& path, Scope scope);

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user

 private:
  QWidget* createBoxes();
  QWidget* createBar();
  QWidget* createLists();
  QPushButton* createButton(const QString& title, const QString& toolTip, void (InspectorView::*action)());
  void togglePause();
  void showWaiting(qsizetype count);
  std::deque<InspectorLog::Event> shownEvents() const;
  void copy();
  void clear();
  void askForFile();

  InspectorLog* m_log;
  InspectorFilter* m_filter;
  QPushButton* m_pause = nullptr;
  InspectorTable* m_table;
  InspectorDetails* m_details;
};
