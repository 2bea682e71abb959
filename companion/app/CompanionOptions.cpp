#include "companion/app/CompanionOptions.h"

#include <QCommandLineParser>

#include "companion/runtime/PluginHost.h"

CompanionOptions CompanionOptions::read(const QStringList& arguments, DisplayChoice display) {
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
       {"first-frame", "Say when the window is on the screen and when it is ready, and end."},
       {"network", "Look for Exchange in the network too, not in the sandbox alone."},
       {"client-id", "The registration that signs in at Office 365; with --network.", "ID"},
       {"record", "Write what happens as a record.", "FILE"},
       {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  parser.process(arguments);
  CompanionOptions options;
  options.isDemoAsked = parser.isSet("demo");
  options.isGuest = parser.isSet("guest");
  options.saysWhenShown = parser.isSet("first-frame");
  options.isDemo = options.isDemoAsked || (display == DisplayChoice::Missing && !options.saysWhenShown);
  if (parser.isSet("network")) options.reach = NetworkReach::Network;
  options.appearance = parser.value("appearance");
  options.language = parser.value("language");
  options.clientId = parser.value("client-id");
  options.outFolder = parser.value("out");
  options.recordPath = parser.value("record");
  options.stateFolder = parser.value("state");
  options.pluginPath = parser.value("plugin");
  return options;
}
