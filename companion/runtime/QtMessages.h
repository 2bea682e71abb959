#pragma once

// Drops what Qt's platform plug-ins say about themselves on standard error; everything else passes.
void installQtMessageFilter();
