#include <QApplication>
#include <QWidget>
#include <cstdio>

#include "bench/FrameWatch.h"

// What any Qt program pays to get a window of the companion's size onto the screen.
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
