#pragma once

#include <QAbstractTableModel>
#include <deque>

#include "companion/app/BorderEvent.h"

// The latest events, oldest first; at most 10,000. Main thread only.
class BorderLog final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { TimeColumn, KindColumn, NameColumn, ContentColumn, ColumnCount };
  static constexpr int kindRole = Qt::UserRole;  // a BorderEvent::Kind as a number
  static constexpr int longestLog = 10'000;

  using QAbstractTableModel::QAbstractTableModel;

  void append(const BorderEvent& event);
  void record(const Crossing& crossing);  // any thread
  void clear();

  // The row as one line, columns parted by tabs.
  QString lineAt(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  QString textAt(int row, int column) const;

  std::deque<BorderEvent> m_events;
};
