#include "companion/app/BorderLogFilter.h"

#include "companion/app/BorderLog.h"

void BorderLogFilter::setKind(std::optional<BorderEvent::Kind> kind) {
  m_kind = kind;
  invalidateFilter();
}

void BorderLogFilter::setText(const QString& text) {
  m_text = text;
  invalidateFilter();
}

bool BorderLogFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const auto at = [&](int column) { return sourceModel()->index(row, column, parent); };
  if (m_kind && at(0).data(BorderLog::kindRole).toInt() != static_cast<int>(*m_kind)) return false;
  if (m_text.isEmpty()) return true;
  return at(BorderLog::NameColumn).data().toString().contains(m_text, Qt::CaseInsensitive) ||
         at(BorderLog::ContentColumn).data().toString().contains(m_text, Qt::CaseInsensitive);
}
