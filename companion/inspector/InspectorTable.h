#pragma once

#include <QTableView>

#include "companion/inspector/InspectorLog.h"

class InspectorModel;

// The rows of the inspector. Follows its end unless the reader has scrolled away from it; then what is read
// stays where it is. Keeps the chosen event chosen when the rows are built anew, and chooses no other one
// when its row goes.
class InspectorTable final : public QTableView {
  Q_OBJECT

 public:
  explicit InspectorTable(InspectorModel* model);

  QList<int> selectedRows() const;  // in order

 Q_SIGNALS:
  void eventChosen(const InspectorLog::Event& event);
  void copyWanted();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

 private:
  void setUpColumns();
  void fitNames();
  bool isAtEnd() const;
  void noteEnd();
  void followEnd();
  void keepPlace(const QModelIndex& parent, int start, int end);
  void restoreCurrent();

  InspectorModel* m_rows;
  bool m_isAtEnd = true;
  int m_nameWidth = 0;  // unless the reader has chosen another
  quint64 m_currentSerial = 0;
};
