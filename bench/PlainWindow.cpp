#include "bench/PlainWindow.h"

#include <QActionGroup>
#include <QToolBar>

PlainWindow::PlainWindow(const QList<PaneRecipe>& recipes) {
  auto* toolBar = addToolBar(QString());
  toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  toolBar->setMovable(false);
  auto* group = new QActionGroup(toolBar);
  setCentralWidget(new QWidget);
  for (const PaneRecipe& recipe : recipes) {
    QAction* item = toolBar->addAction(recipe.icon, recipe.label);
    item->setCheckable(true);
    group->addAction(item);
    auto* pane = new QWidget(centralWidget());
    pane->hide();
    pane->resize(recipe.size);
    for (const PaneRecipe::ControlRecipe& addControl : recipe.controls) addControl(pane);
    m_panes.append(pane);
  }
  showPane(0);
}

void PlainWindow::showPane(qsizetype pane) {
  m_panes.at(m_shown)->hide();
  m_shown = pane;
  shownPane()->show();
  centralWidget()->setFixedSize(shownPane()->size());
  resize(sizeHint());
}
