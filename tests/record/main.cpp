#include <gtest/gtest.h>

#include "companion/app/Appearance.h"
#include "companion/runtime/Application.h"

int main(int argc, char** argv) {
  const Application application(argv);
  if (!applyAppearance("light")) return 1;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
