#pragma once

#include <QSortFilterProxyModel>
#include <set>

#include "companion/inspector/InspectorLog.h"

// The rows of the log that a reader wants to see; at first all.
class InspectorFilter final : public QSortFilterProxyModel {
 public:
  explicit InspectorFilter(InspectorLog* log) : m_log(log) { setSourceModel(log); }  // not owned, outlives it

  // Resetting the model is much faster than removing and inserting rows one by one.
  void setShown(InspectorEvent::Group group, bool isShown) {
    if (isShown) {
      m_hidden.erase(group);
    } else {
      m_hidden.insert(group);
    }
    invalidate();
  }
  void setText(const QString& text) {  // in the title or the content, in any case
    m_text = text;
    invalidate();
  }

  const InspectorLog::Event& eventAt(int row) const {
    return m_log->eventAt(mapToSource(index(row, 0)).row());
  }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& /*parent*/) const override {
    const InspectorEvent& event = *m_log->eventAt(row);
    if (m_hidden.contains(event.group)) return false;
    return m_text.isEmpty() || event.title.contains(m_text, Qt::CaseInsensitive) ||
           event.content.contains(m_text, Qt::CaseInsensitive);
  }

 private:
  const InspectorLog* m_log;
  std::set<InspectorEvent::Group> m_hidden;
  QString m_text;
};
