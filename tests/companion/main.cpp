#include "companion/app/Appearance.h"
#include "companion/runtime/Application.h"
#include "tests/kit/TestRun.h"

// Uses the companion's application object and look, to find faults that occur only with them.
int main(int argc, char** argv) {
  const TestSurroundings surroundings;
  const Application application(argc, argv);
  if (!applyAppearance("light")) return 1;
  return runTests(argc, argv);
}
