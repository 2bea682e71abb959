#pragma once

#include <QString>

enum class DisplayChoice {
  Session,  // the one that the session names
  Chosen,   // by the command line or the environment; it may be offscreen
  Missing,  // the session names none: offscreen
};

// Which of Qt's platforms the program runs on. Before the application object.
[[nodiscard]] DisplayChoice chooseDisplay(int argc, char** argv);

// Once the application object runs without the session's display: the reason, and what helps.
QString displayProblem();
