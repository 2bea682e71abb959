#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <utility>

#include "companion/runtime/PluginEvent.h"

// One line of a session: the members of a JSON object, in the order in which they are printed.
using Line = QList<std::pair<QString, QJsonValue>>;

QByteArray lineText(const Line& line);  // without the line's end

// What is printed of an event that came out of the plug-in, or of a write; empty for every other event. A
// secret of the keychain is never part of it.
Line eventLine(const PluginEvent& event);
