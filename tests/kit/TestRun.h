#pragma once

#include <QTemporaryDir>

// What a test program and those that it starts find: no display, English texts, and folders of their own for
// what a user keeps, which are removed at the end. Make it before the application object.
class TestSurroundings final {
 public:
  TestSurroundings();
  Q_DISABLE_COPY_MOVE(TestSurroundings)

 private:
  QTemporaryDir m_home;
};

// Runs the tests that the arguments ask for; what main returns. Needs the application object.
int runTests(int argc, char** argv);
