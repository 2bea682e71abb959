#pragma once

#include <QHBoxLayout>
#include <QWidget>

// A row without margins as the widget's layout.
inline QHBoxLayout* addRow(QWidget* widget, int spacing) {
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(spacing);
  return row;
}
