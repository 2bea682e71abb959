#include <gtest/gtest.h>

#include <QApplication>

#include "companion/app/Appearance.h"

// Dressed as the companion is: what fails only in its own look fails here too.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (!applyAppearance("light")) return 1;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
