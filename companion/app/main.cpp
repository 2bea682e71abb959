#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>

#include "companion/app/Appearance.h"
#include "companion/app/Border.h"
#include "companion/app/CompanionExchange.h"
#include "companion/app/CompanionWindow.h"
#include "companion/app/DemoTour.h"
#include "companion/app/Sandbox.h"
#include "companion/exchange/StandardExchange.h"
#include "companion/runtime/CommandLine.h"
#include "companion/runtime/PluginLocation.h"
#include "companion/runtime/QtMessages.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr int kUnusable = 2;
constexpr int kPluginFailed = 3;

struct CompanionOptions {
  bool isDemo = false;
  bool isDemoAsked = false;
  bool isGuest = false;
  CompanionExchange::Reach reach = CompanionExchange::Reach::Sandbox;
  QString clientId;
  QString outFolder;
  QString stateFolder;
  QString pluginPath;
};

void complain(const QString& text) {
  std::fprintf(stderr, "companion: %s\n", qPrintable(text));
}

// Qt tries these in order: a display that is named but cannot be reached counts as none.
void choosePlatform() {
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
  QByteArray platforms = "offscreen";
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) platforms.prepend("xcb;");
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) platforms.prepend("wayland;");
  qputenv("QT_QPA_PLATFORM", platforms);
}

bool hasDisplay() {
  return QGuiApplication::platformName() != "offscreen";
}

bool readOptions(const QStringList& arguments, CompanionOptions* options) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A small meeting application that shows the preferences plug-in at work.\n"
      "Without a display it plays a demonstration and prints the paths of the pictures that it took.");
  parser.addHelpOption();
  parser.addOptions(
      {{"demo", "Play the demonstration, also with a display."},
       {"out", "Where the demonstration's pictures go; left out, a fresh folder.", "DIR"},
       {"appearance", "light, dark, high-contrast, high-contrast-dark or system.", "NAME", "system"},
       {"language", "The language of the texts, for example de.", "LANGUAGE"},
       {"state", "Where the settings live.", "DIR"},
       {"guest", "Start as a guest."},
       {"network", "Look for Exchange in the network too, not in the sandbox alone."},
       {"client-id", "The registration that signs in at Office 365; with --network.", "ID"},
       {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  parser.process(arguments);
  if (!applyAppearance(parser.value("appearance"))) {
    complain(QStringLiteral("there is no appearance %1").arg(parser.value("appearance")));
    return false;
  }
  if (parser.isSet("language")) QLocale::setDefault(QLocale(parser.value("language")));
  options->isDemoAsked = parser.isSet("demo");
  options->isDemo = options->isDemoAsked || !hasDisplay();
  options->isGuest = parser.isSet("guest");
  if (parser.isSet("network")) options->reach = CompanionExchange::Reach::Network;
  options->clientId = parser.value("client-id");
  options->outFolder = parser.value("out");
  options->stateFolder = parser.value("state");
  options->pluginPath = parser.value("plugin");
  return true;
}

QString defaultStateFolder() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath("brenn-mivra-meetings");
}

int playDemo(CompanionWindow* window, const CompanionOptions& options) {
  QTemporaryDir fresh(QDir(QDir::tempPath()).filePath("brenn-mivra-demo-XXXXXX"));
  fresh.setAutoRemove(false);
  if (!options.outFolder.isEmpty()) fresh.remove();
  const QString folder = options.outFolder.isEmpty() ? fresh.path() : QDir(options.outFolder).absolutePath();
  std::printf("%s: a demonstration plays offscreen; its pictures are\n",
              options.isDemoAsked ? "As asked" : "There is no display");
  const QStringList paths = DemoTour(window, folder).play();
  for (const QString& path : paths) std::printf("%s\n", qPrintable(path));
  if (!paths.isEmpty()) return 0;
  complain(QStringLiteral("no picture could be written to %1").arg(folder));
  return 1;
}

int runWithSandbox(Border* border, CompanionWindow* window, const CompanionOptions& options) {
  CompanionExchange exchange(
      border, options.reach,
      standardExchangeConfiguration(options.clientId, QStringLiteral("http://127.0.0.1/signed-in")));
  Sandbox sandbox;
  QObject::connect(&exchange, &CompanionExchange::noticed, window, &CompanionWindow::showNotice);
  QObject::connect(&sandbox, &Sandbox::ready, window, [&exchange, window](const QJsonObject& description) {
    exchange.useSandbox(description);
    window->offerAccounts(sandboxAccounts(description));
  });
  QObject::connect(&sandbox, &Sandbox::failed, window, [&exchange, window](const QString& reason) {
    exchange.loseSandbox(reason);
    window->offerAccounts({});
  });
  if (options.reach == CompanionExchange::Reach::Network) {
    window->showNotice(
        QStringLiteral("Exchange is looked for in the network and in a sandbox on this machine; "
                       "what a meeting service would answer is invented here."));
  }
  // The windows come first.
  QTimer::singleShot(0, &sandbox, [&sandbox] { sandbox.start(Sandbox::programPath()); });
  return QApplication::exec();
}

int runCompanion(const CompanionOptions& options) {
  const QTemporaryDir demoState;
  const QString stateFolder =
      options.isDemo && options.stateFolder.isEmpty() ? demoState.path() : options.stateFolder;
  KZPlistFileHandle::sharedInstance().open(stateFolder.isEmpty() ? defaultStateFolder() : stateFolder);
  KZKeyChainHandle::sharedInstance().useStorage(options.isDemo ? KZKeyChainHandle::Storage::Memory
                                                               : KZKeyChainHandle::Storage::System);
  Border border;
  if (!border.loadPlugin(options.pluginPath)) {
    complain(border.errorText());
    return kPluginFailed;
  }
  DemoServices services(&border);
  CompanionWindow window(&border, &services);
  if (options.isDemo) return playDemo(&window, options);
  window.show();
  window.become(options.isGuest ? demouser::Variant::Guest : demouser::Variant::SignedIn);
  window.showPreferences();
  return runWithSandbox(&border, &window, options);
}

}  // namespace

int main(int argc, char** argv) {
  const QStringList arguments = argumentsOf(argc, argv);
  const bool isOffscreen = qgetenv("QT_QPA_PLATFORM").startsWith("offscreen");
  if (arguments.contains("--demo") && !isOffscreen) qputenv("QT_QPA_PLATFORM", "offscreen");
  choosePlatform();
  installQtMessageFilter();
  int onlyName = 1;
  QApplication application(onlyName, argv);
  QApplication::setApplicationName("companion");
  QGuiApplication::setDesktopFileName("brenn-mivra-companion");
  QApplication::setQuitOnLastWindowClosed(false);
  CompanionOptions options;
  if (!readOptions(arguments, &options)) return kUnusable;
  return runCompanion(options);
}
