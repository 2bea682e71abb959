#pragma once

#include <QJsonObject>
#include <QJsonValue>

class QWidget;
class Window;

// What a script sees of a window: exact frames, texts and states, children in the order in which they were
// added.

QJsonObject describeView(const QWidget& view);

QJsonValue describeWindow(const Window* window);  // null for none
