#pragma once

#include <QWidget>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"

// Keeps every view's exact frame in points, y up, and places the view from it; no other unit converts y. The
// frame stays when the parent's height changes, so the view moves on the screen. Where the layout goes from
// right to left, the views are placed as in a mirror, and their frames stay too. Main thread only.

// Keeps the view's frame, or moves it with the parent's upper edge, when the parent's height changes.
enum class VerticalAnchor { Bottom, Top };

// Makes the child, owned by the parent from now on, a subview in front of the others, with the look's style.
// It shows unless it was hidden explicitly.
PLATFORM_EXPORT void addSubview(QWidget* parent, QWidget* child, const Frame& frame,
                                VerticalAnchor anchor = VerticalAnchor::Bottom);

// Hides the view and removes it from its parent's subviews; the parent still owns it.
PLATFORM_EXPORT void removeFromSuperview(QWidget* view);

// A window that is not on the screen, or that the platform does not let move itself, takes the size only.
PLATFORM_EXPORT void setFrame(QWidget* view, const Frame& frame);

// The upper left corner stays where the window manager has it.
PLATFORM_EXPORT void setWindowSize(QWidget* window, const Size& size);

// Where the window's frame can be so that its decoration too is in the available part of its screen.
PLATFORM_EXPORT Frame roomFor(const QWidget* window);

// The exact frame; for a view that was never given one, the frame of its geometry. A window's is in screen
// space.
PLATFORM_EXPORT Frame frameOf(const QWidget* view);

// The views that `addSubview` added and that are still in the parent, in that order.
PLATFORM_EXPORT QList<QWidget*> subviewsOf(const QWidget* parent);
