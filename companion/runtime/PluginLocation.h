#pragma once

#include <QString>

// Where the plug-in lies, seen from the program: beside it in a build folder, or below lib/ where it is
// installed. The first place when there is none, so that the loader's reason names it.
QString defaultPluginPath();
