#pragma once

#include <QString>
#include <QStringList>

#include "companion/session/Session.h"
#include "host/KZUtility/KZKeyChainHandle.h"

// What the command line asks for.
struct SessionOptions {
  QString stateFolder;  // empty: a fresh one
  KZKeyChainHandle::Storage keychain = KZKeyChainHandle::Storage::Memory;
  Session::Trace trace = Session::Trace::Off;
  bool isPrintingWrites = false;
  QString pluginPath;
  QString scriptPath;  // "-": standard input
  QString recordPath;  // empty: nothing is recorded
  bool isCheck = false;

  // False when the command line cannot be followed; `reason` tells why. Ends the program where help is asked
  // for.
  [[nodiscard]] bool read(const QStringList& arguments, QString* reason);
};
