#pragma once

#include <QJsonValue>

class Window;

// What a script sees of a window: exact frames, texts and states, children in the order in which they were
// added. Null for no window.
QJsonValue describeWindow(const Window* window);
