#pragma once

#include "companion/format/LineWriter.h"
#include "companion/runtime/PluginEvent.h"

// What a session prints of an event that came out of the plug-in; empty for every other event.
QList<LineWriter::Member> eventLine(const PluginEvent& event);
