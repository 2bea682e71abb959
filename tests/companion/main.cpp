#include "companion/app/Appearance.h"
#include "companion/runtime/Application.h"
#include "tests/kit/TestRun.h"

// With the companion's own application object and look: what fails only with them fails here too.
int main(int argc, char** argv) {
  const TestSurroundings surroundings;
  const Application application(argv);
  if (!applyAppearance("light")) return 1;
  return runTests(argc, argv);
}
