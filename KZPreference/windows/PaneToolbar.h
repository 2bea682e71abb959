#pragma once

#include <QToolBar>

class QAction;
class QActionGroup;

// The items that choose the pane of a window, one of them selected. The keyboard and assistive technology
// meet it as a list of page tabs, named after the window: the selected item is the only tab stop, and the
// arrow keys choose. Main thread only.
class PaneToolbar final : public QToolBar {
  Q_OBJECT

 public:
  explicit PaneToolbar(QWidget* window);

  void addItem(QAction* item);  // not owned
  void addFlexibleSpace();

  QAction* selectedItem() const;
  bool hasKeyboard() const;  // the focus is on an item

  // As a click on the item does. A place that does not exist changes nothing.
  void chooseItem(qsizetype place);
  enum class AtEnd { Stop, Wrap };
  void chooseNeighbour(int step, AtEnd atEnd);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QList<QAction*> items() const;
  bool chooseByKey(int key);
  void updateTabStop();

  QActionGroup* m_items;  // exclusive
};
