#pragma once

#include <QList>
#include <QString>

class QAction;
class QToolBar;
class QWidget;
class ViewAnimation;
class Window;

// Finds the parts of the plug-in's window without knowing the plug-in.

// nullptr while no controller has built its window.
Window* findPreferencesWindow();

// The container of the pane that is shown; nullptr when the window has none.
QWidget* contentViewOf(const Window& window);

// nullptr when it is absent or was hidden.
QToolBar* toolBarOf(const Window& window);

// The panes' items in order, without spacers.
QList<QAction*> paneItemsOf(const Window& window);

// By the label that is shown, else by the English label's place; nullptr when there is no such pane.
QAction* paneItemNamed(const Window& window, const QString& label);

ViewAnimation* animationOf(const Window& window);
