#pragma once

#include <QJsonValue>

class QWidget;
class Window;

// The description of a window for scripts: exact frames, texts and states, children in the order in which
// they were added. Null for no window.
QJsonValue describeWindow(const Window* window);

// The texts and buttons of the window that waits for a sign-in. Null for no window.
QJsonValue describeSignIn(const QWidget* window);
