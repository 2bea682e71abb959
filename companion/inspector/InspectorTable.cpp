#include "companion/inspector/InspectorTable.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "companion/inspector/InspectorLog.h"

InspectorTable::InspectorTable(QAbstractItemModel* model) {
  setModel(model);
  setSelectionBehavior(SelectRows);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setAccessibleName(QStringLiteral("Events"));
  setUpColumns();
  auto* shortcut = new QShortcut(QKeySequence::Copy, this, nullptr, nullptr, Qt::WidgetShortcut);
  connect(shortcut, &QShortcut::activated, this, &InspectorTable::copyWanted);
  connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &InspectorTable::rememberEnd);
  connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, &InspectorTable::rememberEnd);
  connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, &InspectorTable::rememberEnd);
  connect(model, &QAbstractItemModel::rowsRemoved, this, &InspectorTable::keepPlace);
  connect(model, &QAbstractItemModel::rowsInserted, this, &InspectorTable::followEnd, Qt::QueuedConnection);
  connect(model, &QAbstractItemModel::layoutChanged, this, &InspectorTable::followEnd, Qt::QueuedConnection);
}

void InspectorTable::setUpColumns() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  setColumnWidth(InspectorLog::TimeColumn, 96);
  setColumnWidth(InspectorLog::KindColumn, 142);
  setColumnWidth(InspectorLog::NameColumn, 220);
}

QList<int> InspectorTable::selectedRows() const {
  QList<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.append(index.row());
  std::ranges::sort(rows);
  return rows;
}

void InspectorTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.isValid()) Q_EMIT chosen(current.row());
}

void InspectorTable::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
  // Otherwise the view would choose a neighbour.
  const int row = currentIndex().row();
  if (row >= start && row <= end) selectionModel()->clearCurrentIndex();
  QTableView::rowsAboutToBeRemoved(parent, start, end);
}

void InspectorTable::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  // Once it has its place in the window.
  QMetaObject::invokeMethod(this, &InspectorTable::followEnd, Qt::QueuedConnection);
}

void InspectorTable::hideEvent(QHideEvent* event) {
  QTableView::hideEvent(event);
  m_wasAtEnd = isAtEnd();
}

bool InspectorTable::isAtEnd() const {
  const QScrollBar* bar = verticalScrollBar();
  return bar->value() == bar->maximum();
}

// A hidden list has no end to be at: it stays as it was seen last.
void InspectorTable::rememberEnd() {
  if (isVisible()) m_wasAtEnd = isAtEnd();
}

void InspectorTable::followEnd() {
  if (m_wasAtEnd) scrollToBottom();
}

// The rows that go stand above those that are read.
void InspectorTable::keepPlace(const QModelIndex& /*parent*/, int start, int end) {
  QScrollBar* bar = verticalScrollBar();
  if (!m_wasAtEnd) bar->setValue(bar->value() - (end - start + 1));
}
