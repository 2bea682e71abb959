#include <QApplication>
#include <QWidget>
#include <cstdio>

#include "bench/FrameWatch.h"

// The reference for the companion's start: an empty Qt window of its size.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(900, 560);
  window.show();
  FrameWatch frames;
  frames.waitForFrameOf(&window);
  std::puts("first frame");
  std::fflush(stdout);
  return 0;
}
