#pragma once

#include <QSortFilterProxyModel>
#include <set>

#include "companion/inspector/InspectorLog.h"

// The rows of the log that a reader wants to see.
class InspectorFilter final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit InspectorFilter(InspectorLog* log);  // not owned; must outlive the filter

  void setShown(InspectorEvent::Group group, bool isShown);  // at first all are
  void setText(const QString& text);                         // in the title or the content, in any case

  const InspectorLog::Event& eventAt(int row) const;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  const InspectorLog* m_log;
  std::set<InspectorEvent::Group> m_hidden;
  QString m_text;
};
