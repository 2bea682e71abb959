#pragma once

#include <QString>

// Which of Qt's platforms the program runs on: the session's display, or none. Before the application object.
// True when a display is expected, since the session names one and the command line asks for nothing else.
[[nodiscard]] bool chooseDisplay(int argc, char** argv);

// Once the application object runs without the display that was expected: the reason, and what helps.
QString displayProblem();
