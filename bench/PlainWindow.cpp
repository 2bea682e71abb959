#include "bench/PlainWindow.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>

namespace {

using Kind = ControlRecipe::Kind;

QWidget* createPlainField(const ControlRecipe& recipe) {
  auto* field = new QLineEdit(recipe.text);
  if (recipe.kind == Kind::SecretField) field->setEchoMode(QLineEdit::Password);
  return field;
}

QWidget* createPlainPopUp(const ControlRecipe& recipe) {
  auto* popUp = new QComboBox;
  popUp->addItems(recipe.items);
  popUp->setCurrentText(recipe.text);
  return popUp;
}

QWidget* createPlainControl(const ControlRecipe& recipe) {
  switch (recipe.kind) {
    case Kind::CheckBox:
      return new QCheckBox(recipe.text);
    case Kind::RadioButton:
      return new QRadioButton(recipe.text);
    case Kind::Button:
      return new QPushButton(recipe.text);
    case Kind::Field:
    case Kind::SecretField:
      return createPlainField(recipe);
    case Kind::PopUp:
      return createPlainPopUp(recipe);
    case Kind::Line: {
      auto* line = new QFrame;
      line->setFrameShape(QFrame::HLine);
      return line;
    }
    case Kind::Label:
      break;
  }
  return new QLabel(recipe.text);
}

}  // namespace

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
    m_panes.append(createPane(recipe));
  }
  showPane(0);
}

QWidget* PlainWindow::createPane(const PaneRecipe& recipe) {
  auto* pane = new QWidget(centralWidget());
  pane->hide();
  pane->resize(recipe.size);
  for (const ControlRecipe& control : recipe.controls) {
    QWidget* widget = createPlainControl(control);
    widget->setParent(pane);
    widget->setGeometry(control.place);
    widget->setEnabled(control.isEnabled);
    widget->setVisible(!control.isHidden);
  }
  return pane;
}

void PlainWindow::showPane(qsizetype pane) {
  m_panes.at(m_shown)->hide();
  m_shown = pane;
  shownPane()->show();
  centralWidget()->setFixedSize(shownPane()->size());
  resize(sizeHint());
}
