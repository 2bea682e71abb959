#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QTableWidget>

// A table to read: no grid, no editing, whole rows selected, Tab leaves it. `name` is for assistive
// technology.
QTableWidget* createListTable(const QString& name, const QStringList& headings);

void setListRows(QTableWidget* table, const QList<QStringList>& rows);
