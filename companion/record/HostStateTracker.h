#pragma once

#include <QJsonObject>
#include <QList>

#include "companion/format/Line.h"

// Finds what changed in the host's own state, as the steps that change it again. Main thread only.
class HostStateTracker final {
 public:
  // Read once where only the plug-in changes secrets: what a keyring answers late is no change by the host.
  enum class Keychain { ReadOnce, Followed };

  explicit HostStateTracker(Keychain keychain) : m_keychain(keychain) {}

  // The steps from the state that was accepted last to the present one, which is accepted by it. The first
  // time: from the state in which a host without settings begins.
  QList<Line> changes();
  void accept() { m_accepted = present(); }

 private:
  QJsonObject present() const;

  const Keychain m_keychain;
  QJsonObject m_accepted;  // by the words that `set` has for its parts
};
