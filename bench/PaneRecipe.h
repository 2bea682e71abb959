#pragma once

#include <QIcon>
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

class Window;

// A pane's controls and their places, read from the plug-in's window to build a plain window of the same
// controls.
struct ControlRecipe {
  enum class Kind { Label, CheckBox, RadioButton, Button, Field, SecretField, PopUp, Line };

  Kind kind = Kind::Label;
  QString text = {};
  QStringList items = {};
  QRect place = {};
  bool isHidden = false;
  bool isEnabled = true;
};

struct PaneRecipe {
  QString label = {};
  QIcon icon = {};
  QSize size = {};
  QList<ControlRecipe> controls = {};
};

// Shows every pane of the window in turn, at last the first one.
QList<PaneRecipe> recipesOf(const Window& window);
