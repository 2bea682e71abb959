#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <optional>

#include "companion/runtime/CommandLine.h"
#include "companion/runtime/PluginLocation.h"
#include "companion/runtime/QtMessages.h"
#include "companion/session/Session.h"
#include "companion/session/WriteWatch.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr int kUnusable = 2;
constexpr int kPluginFailed = 3;

struct SessionOptions {
  QString stateFolder;
  KZKeyChainHandle::Storage keychain = KZKeyChainHandle::Storage::Memory;
  Session::Trace trace = Session::Trace::Off;
  bool isPrintingWrites = false;
  QString pluginPath;
  QString scriptPath;
};

void complain(const QString& text) {
  std::fprintf(stderr, "prefs-session: %s\n", qPrintable(text));
}

// False when the command line cannot be followed; the reason is on standard error.
bool readOptions(const QStringList& arguments, SessionOptions* options) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Loads the preferences plug-in, plays one step a line, and prints what came back, one JSON object a "
      "line.\n"
      "Windows are drawn offscreen unless QT_QPA_PLATFORM says otherwise.");
  parser.addHelpOption();
  parser.addOptions(
      {{"state", "Where the settings store lives; left out, a fresh folder.", "DIR"},
       {"keychain", "Where secrets are kept: memory (the default) or system.", "KIND", "memory"},
       {"trace", "Print trace lines too."},
       {"writes", "Print what is written into the settings store and the keychain."},
       {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  parser.addPositionalArgument("FILE", "The script, \"-\" or left out: standard input.", "[FILE | -]");
  parser.process(arguments);
  const QString keychain = parser.value("keychain");
  if (keychain != "memory" && keychain != "system") {
    complain(QStringLiteral("--keychain is memory or system, not %1").arg(keychain));
    return false;
  }
  if (parser.positionalArguments().size() > 1) {
    complain(QStringLiteral("one script at a time"));
    return false;
  }
  options->stateFolder = parser.value("state");
  if (keychain == "system") options->keychain = KZKeyChainHandle::Storage::System;
  if (parser.isSet("trace")) options->trace = Session::Trace::On;
  options->isPrintingWrites = parser.isSet("writes");
  options->pluginPath = parser.value("plugin");
  options->scriptPath = parser.positionalArguments().value(0, "-");
  return true;
}

bool openScript(const QString& path, QFile* script) {
  if (path == "-") return script->open(stdin, QIODevice::ReadOnly);
  script->setFileName(path);
  return script->open(QIODevice::ReadOnly);
}

int playSession(const SessionOptions& options, QFile* script) {
  Border border([](const QUrl&) { return true; });
  LineWriter writer(stdout);
  std::optional<WriteWatch> writes;
  if (options.isPrintingWrites) writes.emplace(&writer);
  // What is traced while the plug-in is loaded is heard, what the end traces is not part of the script.
  std::optional<Session> session(std::in_place, &border, &writer, options.trace);
  if (!border.loadPlugin(options.pluginPath)) {
    complain(border.errorText());
    return kPluginFailed;
  }
  const Session::End end = session->play(script);
  session.reset();
  writes.reset();
  return static_cast<int>(end);
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  installQtMessageFilter();
  int onlyName = 1;
  QApplication application(onlyName, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setApplicationName("prefs-session");

  SessionOptions options;
  if (!readOptions(argumentsOf(argc, argv), &options)) return kUnusable;
  QFile script;
  if (!openScript(options.scriptPath, &script)) {
    complain(QStringLiteral("cannot read %1: %2").arg(options.scriptPath, script.errorString()));
    return kUnusable;
  }
  const QTemporaryDir freshFolder;
  KZPlistFileHandle::sharedInstance().open(options.stateFolder.isEmpty() ? freshFolder.path()
                                                                         : options.stateFolder);
  KZKeyChainHandle::sharedInstance().useStorage(options.keychain);
  return playSession(options, &script);
}
