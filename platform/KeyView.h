#pragma once

#include "platform/PlatformExport.h"

class QWidget;

// The tab order, where it differs from the window's chain, and the first responder: the view that has the
// keyboard. Main thread only.

// Tab in `from` goes to `to` while `to` is visible and enabled, else along the window's chain. From views
// that lead back to themselves Ctrl+Tab goes on along the window's chain.
PLATFORM_EXPORT void setNextKeyView(QWidget* from, QWidget* to);
PLATFORM_EXPORT QWidget* nextKeyViewOf(const QWidget* view);  // nullptr when none was set

// Gives the view the focus; until it is hidden itself, also whenever it comes back with its pane. A view
// outside the window never has the focus.
PLATFORM_EXPORT void makeFirstResponder(QWidget* view);

// Takes the focus from the window's view, but not from one that `makeFirstResponder` gave it to.
PLATFORM_EXPORT void clearFirstResponder(QWidget* window);
