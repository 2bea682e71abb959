#pragma once

#include <QTableView>

class InspectorModel;

// The rows of the inspector. Follows its end unless the reader has scrolled away from it, and keeps the
// chosen event chosen when the rows are built anew.
class InspectorTable final : public QTableView {
  Q_OBJECT

 public:
  explicit InspectorTable(InspectorModel* model);

  QList<int> selectedRows() const;  // in order

 Q_SIGNALS:
  void currentEventChanged();
  void copyWanted();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void setUpColumns();
  void noteEnd();
  void followEnd();
  void restoreCurrent();

  InspectorModel* m_rows;
  bool m_isAtEnd = true;
  quint64 m_currentSerial = 0;
};
