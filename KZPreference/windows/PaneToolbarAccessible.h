#pragma once

class QToolBar;

// Assistive technology sees the toolbar as a list of page tabs, which are its checkable items, named after
// the window. Main thread only.
void showAsPageTabs(QToolBar* toolbar);
