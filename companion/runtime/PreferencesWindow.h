#pragma once

#include <QList>
#include <QString>
#include <QWidgetList>

class QAction;
class QToolBar;
class QWidget;
class ViewAnimation;
class Window;

// Finds the plug-in's windows and their parts without knowing the plug-in.

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

// Those that wait for a user to sign in with the browser, as far as they are shown.
QWidgetList findSignInWindows();

ViewAnimation* animationOf(const Window& window);
