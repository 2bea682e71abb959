#pragma once

#include <QString>
#include <QStringList>

#include "companion/app/Display.h"
#include "companion/network/NetworkConfiguration.h"

// The options of the command line.
struct CompanionOptions {
  bool isDemo = false;
  bool isDemoAsked = false;
  bool isGuest = false;
  bool saysWhenShown = false;
  NetworkReach reach = NetworkReach::Sandbox;
  QString appearance;
  QString language;  // empty: the desktop's
  QString clientId;
  QString outFolder;
  QString recordPath;   // empty: nothing is recorded
  QString stateFolder;  // empty: the user's own
  QString pluginPath;

  // Without a display it plays the demonstration, unless one was chosen. Ends the program after --help or an
  // invalid command line.
  static CompanionOptions read(const QStringList& arguments, DisplayChoice display);
};
