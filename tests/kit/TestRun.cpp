#include "tests/kit/TestRun.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLocale>

TestSurroundings::TestSurroundings() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  qputenv("LC_ALL", "C.UTF-8");
  for (const char* kind : {"config", "data", "cache"}) {
    const QByteArray variable = "XDG_" + QByteArray(kind).toUpper() + "_HOME";
    qputenv(variable.constData(), QFile::encodeName(m_home.filePath(QLatin1String(kind))));
  }
}

int runTests(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication::setApplicationVersion(QStringLiteral(KZ_VERSION));
  QApplication::setQuitOnLastWindowClosed(false);
  QLocale::setDefault(QLocale::c());
  return RUN_ALL_TESTS();
}
