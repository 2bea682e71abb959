#pragma once

#include <QTemporaryDir>

// The environment of a test program and those that it starts: no display, English texts, and temporary
// folders for a user's files. Create it before the application object.
class TestSurroundings final {
 public:
  TestSurroundings();
  Q_DISABLE_COPY_MOVE(TestSurroundings)

 private:
  QTemporaryDir m_home;
};

// Runs the tests that the arguments select and returns the exit status. Needs the application object.
int runTests(int argc, char** argv);
