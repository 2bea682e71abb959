#pragma once

#include <QHBoxLayout>
#include <QPushButton>
#include <QWidget>

// A row without margins as the widget's layout.
inline QHBoxLayout* addRow(QWidget* widget, int spacing) {
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(spacing);
  return row;
}

// Return presses it too when it has the focus.
inline QPushButton* createButton(const QString& title) {
  auto* button = new QPushButton(title);
  button->setAutoDefault(true);
  return button;
}
