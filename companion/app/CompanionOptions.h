#pragma once

#include <QString>
#include <QStringList>

#include "companion/network/NetworkConfiguration.h"

// What the command line asks for.
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

  // Ends the program where the command line asks for help or cannot be followed.
  static CompanionOptions read(const QStringList& arguments);
};
