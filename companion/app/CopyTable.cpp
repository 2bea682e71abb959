#include "companion/app/CopyTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int kRowHeight = 26;
constexpr int kCellGap = 14;
constexpr int kLineGap = 8;

// Rows of several lines keep as much room between them as those of one.
class RoomyDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kLineGap);
  }
};

// Inside a box, since a table stretches what is in its cells.
QWidget* inBox(QWidget* button) {
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(kLineGap, 0, kLineGap / 2, 0);
  row->addWidget(button);
  return box;
}

}  // namespace

CopyTable::CopyTable(const QString& name, const QStringList& headings)
    : m_textColumns(static_cast<int>(headings.size())) {
  setAccessibleName(name);
  setColumnCount(m_textColumns);
  setHorizontalHeaderLabels(headings);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setItemDelegate(new RoomyDelegate(this));
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(kRowHeight);
  verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionResizeMode(m_textColumns - 1, QHeaderView::Stretch);
  connect(verticalHeader(), &QHeaderView::sectionResized, this, &CopyTable::fitHeight, Qt::QueuedConnection);
  connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &CopyTable::fitHeight,
          Qt::QueuedConnection);
  connect(this, &QTableWidget::itemDoubleClicked, this, &CopyTable::copy);
}

void CopyTable::setRows(const QList<QStringList>& rows) {
  setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < rowCount(); ++row) {
    for (int column = 0; column < m_textColumns; ++column) {
      setItem(row, column, new QTableWidgetItem(rows.at(row).value(column)));
    }
  }
  resizeColumnsToContents();
  for (int column = 0; column < m_textColumns - 1; ++column) {
    setColumnWidth(column, columnWidth(column) + kCellGap);
  }
  fitHeight();
}

void CopyTable::addButtons(const QString& title, const QString& accessibleName) {
  setColumnCount(m_textColumns + 1);
  setHorizontalHeaderItem(m_textColumns, new QTableWidgetItem);
  for (int row = 0; row < rowCount(); ++row) {
    const QString firstText = item(row, 0)->text();
    auto* button = new QPushButton(title);
    button->setAccessibleName(accessibleName.arg(firstText));
    connect(button, &QPushButton::clicked, this, [this, firstText] { Q_EMIT buttonPressed(firstText); });
    setCellWidget(row, m_textColumns, inBox(button));
  }
  horizontalHeader()->setSectionResizeMode(m_textColumns, QHeaderView::ResizeToContents);
  fitHeight();
}

void CopyTable::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn || event->matches(QKeySequence::Copy)) return copy(currentItem());
  QTableWidget::keyPressEvent(event);
}

void CopyTable::copy(const QTableWidgetItem* item) {
  if (item == nullptr || item->text().isEmpty()) return;
  QGuiApplication::clipboard()->setText(item->text());
  Q_EMIT copied(item->text());
}

void CopyTable::fitHeight() {
  const QScrollBar* bar = horizontalScrollBar();
  const int barHeight = bar->maximum() > bar->minimum() ? bar->sizeHint().height() : 0;
  setFixedHeight(horizontalHeader()->height() + verticalHeader()->length() + barHeight + 2 * frameWidth());
}
