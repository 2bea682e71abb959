#pragma once

#include <QTableView>
#include <initializer_list>

// The first columns' widths, in characters of the table's font.
inline void setColumnWidths(QTableView* table, std::initializer_list<int> characters) {
  int column = 0;
  for (const int count : characters) {
    table->setColumnWidth(column++, count * table->fontMetrics().averageCharWidth());
  }
}
