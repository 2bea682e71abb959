#pragma once

#include <QByteArray>
#include <QString>
#include <deque>

#include "companion/inspector/InspectorLog.h"

// One line: a JSON object with "time" (ISO 8601, UTC), "kind", "name", and what applies of "number", "level",
// "content" (JSON), "difference" (lines) and "text".
QByteArray exportedLine(const InspectorEvent& event);

// JSON Lines, readable by the owner alone; replaces the file as a whole or not at all. The reason when it
// failed, else null.
[[nodiscard]] QString exportEvents(const QString& path, const std::deque<InspectorLog::Event>& events);
