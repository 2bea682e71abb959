#include "companion/runtime/CommandLine.h"

QStringList argumentsOf(int argc, char** argv) {
  QStringList arguments;
  for (int place = 0; place < argc; ++place) arguments.append(QString::fromLocal8Bit(argv[place]));
  return arguments;
}
