#pragma once

#include <QIcon>
#include <QList>
#include <QSize>
#include <QString>
#include <functional>

class QWidget;
class Window;

// How to make a pane's controls anew of Qt's own widgets: read from the plug-in's window, to build a plain
// window of the same controls.
struct PaneRecipe {
  using ControlRecipe = std::function<void(QWidget* pane)>;

  QString label;
  QIcon icon;
  QSize size;
  QList<ControlRecipe> controls = {};
};

// Shows every pane of the window in turn, at last the first one.
QList<PaneRecipe> recipesOf(const Window& window);
