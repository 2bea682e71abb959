#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include "companion/format/LineWriter.h"

// Tells which of the host's own state has changed, as the steps that change it. Main thread only.
class HostStateWatch final {
 public:
  // A keychain outside of this process is too slow to be asked at every step; this host's own writes to it
  // come from the plug-in.
  enum class Keychain { ReadOnce, Followed };

  explicit HostStateWatch(Keychain keychain) : m_keychain(keychain) {}

  // The steps from the state that was seen last to the present one. The first time: from the state in which
  // a host without settings begins.
  QList<QList<LineWriter::Member>> changes();
  // The present state counts as seen.
  void accept();
  // What the store's values become in between counts as seen, the rest does not.
  void loadingBegins();
  void loadingEnded();

 private:
  struct State {
    QString language;
    QJsonObject host;
    QJsonObject store;
    QJsonObject credential;
    QJsonValue tokens;
  };

  static State emptyState();
  State present() const;

  const Keychain m_keychain;
  bool m_isBegun = false;
  State m_seen = emptyState();
  QJsonObject m_storeBeforeLoading;
};
