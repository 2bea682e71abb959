#pragma once

#include <QIcon>
#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

class Window;

// What stands where in a pane, taken from the plug-in's window so that a plain window can be built of the
// same parts.
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

// Visits every pane of the window, which shows its first one afterwards.
QList<PaneRecipe> recipesOf(const Window& window);
