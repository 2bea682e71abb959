#include <QApplication>

#include "tests/kit/TestRun.h"

int main(int argc, char** argv) {
  const TestSurroundings surroundings;
  const QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return runTests(argc, argv);
}
