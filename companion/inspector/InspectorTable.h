#pragma once

#include <QTableView>

// The rows of the inspector. Follows its end unless the reader has scrolled away from it; then what is read
// stays where it is. Chooses no other row when the chosen one goes.
class InspectorTable final : public QTableView {
  Q_OBJECT

 public:
  explicit InspectorTable(QAbstractItemModel* model);  // an InspectorLog's rows

  QList<int> selectedRows() const;  // in order

 Q_SIGNALS:
  void chosen(int row);
  void copyWanted();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

 private:
  void setUpColumns();
  bool isAtEnd() const;
  void rememberEnd();
  void followEnd();
  void keepPlace(const QModelIndex& parent, int start, int end);

  bool m_wasAtEnd = true;
};
