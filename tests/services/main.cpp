#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationVersion(KZ_VERSION);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
