#pragma once

#include <QObject>

#include "companion/session/LineWriter.h"
#include "host/KZUtility/KZKeyChainHandle.h"

// Prints what is written into the settings store, and which items of the keychain are written or removed;
// never a secret. The keychain is used in its place from then on.
class WriteWatch final : public QObject {
 public:
  WriteWatch(LineWriter* writer, KZKeyChainHandle::Storage keychain);  // not owned, outlives this
  ~WriteWatch() override;
  Q_DISABLE_COPY_MOVE(WriteWatch)
};
