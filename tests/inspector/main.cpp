#include <gtest/gtest.h>

#include <QApplication>

#include "platform/Look.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(lookStyle());
  QApplication::setPalette(lookPalette(LookScheme::Light));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
