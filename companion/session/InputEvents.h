#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWindow;

// Single events as the display server delivers them. The modifier keys are pressed before and released after,
// so that the application's idea of what is held is right at every moment.
namespace inputevents {

void click(QWindow* window, const QPoint& place, Qt::KeyboardModifiers modifiers);
void pressKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers);
void pressKey(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text);

// Every character by its key; what follows the first 2,000 comes in one piece, as from an input method,
// because a field lays its whole text out for each key.
void typeText(QWindow* window, const QString& text);

}  // namespace inputevents
