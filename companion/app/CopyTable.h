#pragma once

#include <QList>
#include <QStringList>
#include <QTableWidget>

// A table to read and to copy from, as high as its rows. Ctrl+C, Return and a double click copy a cell.
class CopyTable final : public QTableWidget {
  Q_OBJECT

 public:
  // The last column of texts takes the width that the others leave.
  explicit CopyTable(const QString& name, const QStringList& headings);

  void setRows(const QList<QStringList>& rows);
  // One button a row, in a column of its own behind the texts; `accessibleName` holds %1 for the row's first
  // text, and `buttonPressed` tells that.
  void addButtons(const QString& title, const QString& accessibleName);

 Q_SIGNALS:
  void copied(const QString& text);
  void buttonPressed(const QString& firstText);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void copy(const QTableWidgetItem* item);
  void fitHeight();

  int m_textColumns;
};
