#pragma once

#include <QObject>

#include "companion/format/LineWriter.h"

// Prints what is written into the settings store, and which items of the keychain are written or removed;
// never a secret.
class WriteWatch final : public QObject {
 public:
  explicit WriteWatch(LineWriter* writer);  // not owned, outlives this
};
