#pragma once

#include <QString>
#include <QStringList>

#include "companion/app/CompanionExchange.h"

// What the command line asks for.
struct CompanionOptions {
  bool isDemo = false;
  bool isDemoAsked = false;
  bool isGuest = false;
  bool saysWhenShown = false;
  CompanionExchange::Reach reach = CompanionExchange::Reach::Sandbox;
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
