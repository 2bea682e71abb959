#pragma once

#include "companion/runtime/Crossing.h"
#include "companion/session/LineWriter.h"

// What a session prints of something that came out of the plug-in; empty for everything else.
QList<LineWriter::Member> crossingLine(const Crossing& crossing);
