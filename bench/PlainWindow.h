#pragma once

#include <QList>
#include <QMainWindow>

#include "bench/PaneRecipe.h"

// The reference for the Preferences window: the same panes of Qt's own widgets in Qt's own style, in a window
// with the size of the pane that it shows.
class PlainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit PlainWindow(const QList<PaneRecipe>& recipes);

  void showPane(qsizetype pane);
  QWidget* shownPane() const { return m_panes.at(m_shown); }

 private:
  QList<QWidget*> m_panes;
  qsizetype m_shown = 0;
};
