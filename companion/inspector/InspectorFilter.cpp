#include "companion/inspector/InspectorFilter.h"

InspectorFilter::InspectorFilter(InspectorLog* log) : m_log(log) {
  setSourceModel(log);
}

// To lay the rows out anew takes far less time than to remove and insert them one by one.
void InspectorFilter::setShown(InspectorEvent::Group group, bool isShown) {
  if (isShown) {
    m_hidden.erase(group);
  } else {
    m_hidden.insert(group);
  }
  invalidate();
}

void InspectorFilter::setText(const QString& text) {
  m_text = text;
  invalidate();
}

const InspectorLog::Event& InspectorFilter::eventAt(int row) const {
  return m_log->eventAt(mapToSource(index(row, 0)).row());
}

bool InspectorFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  const InspectorEvent& event = *m_log->eventAt(row);
  if (m_hidden.contains(event.group)) return false;
  return m_text.isEmpty() || event.title().contains(m_text, Qt::CaseInsensitive) ||
         event.content.contains(m_text, Qt::CaseInsensitive);
}
