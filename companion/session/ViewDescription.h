#pragma once

#include <QJsonValue>

class Window;

// The description of a window for scripts: exact frames, texts and states, children in the order in which
// they were added. Null for no window.
QJsonValue describeWindow(const Window* window);
