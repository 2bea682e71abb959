#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/BenchHost.h"
#include "companion/runtime/Application.h"

int main(int argc, char** argv) {
  const bool hasDisplay =
      !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  if (!hasDisplay && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  QApplication::setStyle(QStringLiteral("fusion"));
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  if (!benchhost::start()) return 3;
  benchmark::RunSpecifiedBenchmarks();
  benchhost::stop();
  return 0;
}
