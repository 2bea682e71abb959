#include "companion/inspector/InspectorTable.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "companion/inspector/InspectorModel.h"

namespace {

constexpr int kNarrowestNames = 178;
constexpr int kWidestNames = 280;

}  // namespace

InspectorTable::InspectorTable(InspectorModel* model) : m_rows(model) {
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
  connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &InspectorTable::noteEnd);
  connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, &InspectorTable::noteEnd);
  connect(model, &QAbstractItemModel::rowsRemoved, this, &InspectorTable::keepPlace);
  connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &InspectorTable::noteEnd);
  connect(model, &QAbstractItemModel::rowsInserted, this, &InspectorTable::followEnd, Qt::QueuedConnection);
  connect(model, &QAbstractItemModel::modelReset, this, &InspectorTable::restoreCurrent);
  connect(model, &QAbstractItemModel::modelReset, this, &InspectorTable::followEnd, Qt::QueuedConnection);
}

void InspectorTable::setUpColumns() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  setColumnWidth(InspectorModel::TimeColumn, 96);
  setColumnWidth(InspectorModel::KindColumn, 142);
  m_nameWidth = columnWidth(InspectorModel::NameColumn);
  fitNames();
}

void InspectorTable::fitNames() {
  if (columnWidth(InspectorModel::NameColumn) != m_nameWidth) return;
  m_nameWidth = std::clamp(viewport()->width() * 3 / 10, kNarrowestNames, kWidestNames);
  setColumnWidth(InspectorModel::NameColumn, m_nameWidth);
}

void InspectorTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fitNames();
}

QList<int> InspectorTable::selectedRows() const {
  QList<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows.append(index.row());
  std::ranges::sort(rows);
  return rows;
}

void InspectorTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!current.isValid()) return;
  const InspectorLog::Event& event = m_rows->eventAt(current.row());
  if (event->serial == m_currentSerial) return;
  m_currentSerial = event->serial;
  Q_EMIT eventChosen(event);
}

void InspectorTable::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
  // Else the view makes a neighbour the current one, and nobody has chosen that.
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
  m_isAtEnd = isAtEnd();
}

bool InspectorTable::isAtEnd() const {
  const QScrollBar* bar = verticalScrollBar();
  return bar->value() == bar->maximum();
}

void InspectorTable::noteEnd() {
  if (isVisible()) m_isAtEnd = isAtEnd();  // else as it was when it was seen last
}

void InspectorTable::followEnd() {
  if (m_isAtEnd) scrollToBottom();
}

// What goes stands above what is read.
void InspectorTable::keepPlace(const QModelIndex& /*parent*/, int start, int end) {
  QScrollBar* bar = verticalScrollBar();
  if (!m_isAtEnd) bar->setValue(bar->value() - (end - start + 1));
}

void InspectorTable::restoreCurrent() {
  const int row = m_rows->rowOf(m_currentSerial);
  if (row >= 0) setCurrentIndex(m_rows->index(row, 0));
}
