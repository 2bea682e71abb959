#pragma once

#include <QWidget>

class BorderLog;
class BorderLogFilter;
class PopUpButton;
class QLineEdit;
class QTableView;

// The live list: filtered by kind and text, copied as lines of text.
class BorderLogView final : public QWidget {
  Q_OBJECT

 public:
  explicit BorderLogView(BorderLog* log);  // not owned; must outlive the view

  // The selected rows as lines, or every row that the filter lets through when none is selected.
  QString textToCopy() const;

 private:
  QWidget* createFilterBar();
  void setUpTable();
  void applyKind();
  void copy();
  void followEnd();

  BorderLog* m_log;
  BorderLogFilter* m_filter;
  PopUpButton* m_kind;
  QLineEdit* m_text;
  QTableView* m_table;
  bool m_isAtEnd = true;
};
