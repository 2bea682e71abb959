#include "companion/app/ListTable.h"

#include <QHeaderView>

namespace {

constexpr int kRowGap = 6;

// As high as there is room for, not as its rows would be, but some of them are seen.
class ListTable final : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;
  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int kLeastLines = 4;
    return {QTableWidget::minimumSizeHint().width(), kLeastLines * (fontMetrics().height() + kRowGap)};
  }
};

}  // namespace

QTableWidget* createListTable(const QString& name, const QStringList& headings) {
  auto* table = new ListTable(0, static_cast<int>(headings.size()));
  table->setHorizontalHeaderLabels(headings);
  table->setAccessibleName(name);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setTabKeyNavigation(false);
  table->setShowGrid(false);
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + kRowGap);
  table->horizontalHeader()->setHighlightSections(false);
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return table;
}

void setListRows(QTableWidget* table, const QList<QStringList>& rows) {
  table->setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < table->rowCount(); ++row) {
    for (int column = 0; column < table->columnCount(); ++column) {
      table->setItem(row, column, new QTableWidgetItem(rows.at(row).value(column)));
    }
  }
}
