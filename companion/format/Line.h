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

// The line for an event from the plug-in, or for a write; empty for every other event. It never contains a
// secret of the keychain.
Line eventLine(const PluginEvent& event);
