#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <Qt>

class QFont;
class QWidget;

// Adds what a view of that kind shows: text, state, items, colour and so on.
void describeControl(const QWidget& view, QJsonObject* description);

QJsonValue describeFont(const QFont& font);
QString describeAlignment(Qt::Alignment alignment);
