#include "companion/app/Display.h"

#include <QDir>
#include <QLibraryInfo>
#include <algorithm>
#include <string_view>

namespace {

bool isGiven(int argc, char** argv, std::initializer_list<std::string_view> spellings) {
  return std::any_of(argv, argv + argc, [spellings](const char* argument) {
    return std::ranges::find(spellings, std::string_view(argument)) != spellings.end();
  });
}

bool hasPlugin(const QString& name) {
  const QDir platforms(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
  return !platforms.entryList({QStringLiteral("libq%1*.so").arg(name)}, QDir::Files).isEmpty();
}

}  // namespace

DisplayChoice chooseDisplay(int argc, char** argv) {
  if (isGiven(argc, argv, {"-platform", "--platform"})) return DisplayChoice::Chosen;
  if (isGiven(argc, argv, {"--demo"})) {
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen")) qputenv("QT_QPA_PLATFORM", "offscreen");
    return DisplayChoice::Chosen;
  }
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return DisplayChoice::Chosen;
  // Qt tries these in order. Without the last one it would abort where no display can be used.
  QByteArray platforms = "offscreen";
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) platforms.prepend("xcb;");
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) platforms.prepend("wayland;");
  qputenv("QT_QPA_PLATFORM", platforms);
  return platforms.contains(';') ? DisplayChoice::Session : DisplayChoice::Missing;
}

QString displayProblem() {
  const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
  if (!wayland.isEmpty() && !hasPlugin(QStringLiteral("wayland"))) {
    return QStringLiteral("windows cannot be shown on Wayland. Install the package qt6-wayland.");
  }
  const QString x11 = qEnvironmentVariable("DISPLAY");
  if (!x11.isEmpty() && !hasPlugin(QStringLiteral("xcb"))) {
    return QStringLiteral("windows cannot be shown on X11. Install the package libqt6gui6.");
  }
  return QStringLiteral(
             "the display %1 cannot be used. Check that it exists and that you may use it, or see the "
             "demonstration with --demo.")
      .arg(wayland.isEmpty() ? x11 : wayland);
}
