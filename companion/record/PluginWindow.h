#pragma once

#include <QString>

class PopUpButton;
class QAction;
class QEvent;
class QObject;
class QWidget;
class Window;

// The target of the user's input, as a session names it.
namespace pluginwindow {

// The widget that the display server's window shows; nullptr when there is none.
QWidget* widgetOf(const QObject* window);

// The plug-in's window if the widget is in it, or in a list or menu that belongs to it; else nullptr.
Window* ownerOf(QWidget* widget);

// The pop-up button whose list the widget is in; nullptr when it is in none.
PopUpButton* popUpOf(QWidget* widget);

// The pane that a click on the widget shows; nullptr when it is no button of the toolbar.
QAction* paneOf(const Window& window, QWidget* widget);

// The name of the control itself; null when it has none.
QString nameOf(const Window& window, QWidget* control);

// The name by which a click in a control's middle does what a click on the widget does; null when there is
// none.
QString clickableNameOf(const Window& window, QWidget* widget);

// Describes an input in another window of the plug-in, for which there are no steps: where it was, never what
// was typed. Null for other windows, and for inputs without an effect.
QString inputElsewhere(const QWidget& target, const QEvent& event);

}  // namespace pluginwindow
