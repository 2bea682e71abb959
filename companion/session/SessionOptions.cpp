#include "companion/session/SessionOptions.h"

#include <QCommandLineParser>

#include "companion/runtime/PluginHost.h"

bool SessionOptions::read(const QStringList& arguments, QString* reason) {
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
       {"record", "Write what is played and what comes out as a record.", "RECORD"},
       {"check", "Compare what comes out with what the script, a record, says came out."},
       {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  parser.addPositionalArgument("FILE", "The script, \"-\" or left out: standard input.", "[FILE | -]");
  parser.process(arguments);
  const QString storage = parser.value("keychain");
  if (storage != "memory" && storage != "system") {
    *reason = QStringLiteral("--keychain is memory or system, not %1").arg(storage);
    return false;
  }
  if (parser.positionalArguments().size() > 1) {
    *reason = QStringLiteral("one script at a time");
    return false;
  }
  stateFolder = parser.value("state");
  if (storage == "system") keychain = KZKeyChainHandle::Storage::System;
  if (parser.isSet("trace")) trace = Session::Trace::On;
  isPrintingWrites = parser.isSet("writes");
  isCheck = parser.isSet("check");
  recordPath = parser.value("record");
  pluginPath = parser.value("plugin");
  scriptPath = parser.positionalArguments().value(0, "-");
  return true;
}
