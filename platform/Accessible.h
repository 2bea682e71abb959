#pragma once

#include <QAccessible>
#include <QString>

#include "platform/PlatformExport.h"

class QLabel;
class QWidget;

// What assistive technology is told beyond what the toolkit tells by itself. Main thread only.

// For views and labels: instead of the toolkit's role. The name stays the accessible name, else a label's
// text.
PLATFORM_EXPORT void setAccessibleRole(QWidget* view, QAccessible::Role role);
QAccessible::Role accessibleRoleOf(const QObject* view);  // NoRole when none was set

// Drops what the toolkit made of the view when it asked too early; the next query makes it anew.
PLATFORM_EXPORT void renewAccessible(QWidget* view);

// The view is labelled by the label, which has the same parent.
PLATFORM_EXPORT void setAccessibleLabel(QWidget* view, QLabel* label);

// Assistive technology speaks the text once. `source` is the view that the text is about.
PLATFORM_EXPORT void announce(QWidget* source, const QString& text);
