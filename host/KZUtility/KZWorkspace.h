#pragma once

#include <QUrl>
#include <functional>

#include "host/KZFoundation/KZHostExport.h"

// Opens addresses for the user. Main thread only.
class KZ_HOST_EXPORT KZWorkspace {
 public:
  using Opener = std::function<bool(const QUrl&)>;

  static KZWorkspace& sharedWorkspace();

  // False when nothing opened it. An invalid address is refused, and the desktop's own opener refuses one
  // without a scheme.
  bool openURL(const QUrl& url);

  // Sets the function that opens addresses; an empty function restores the desktop's own opener.
  void setOpener(Opener opener) { m_opener = std::move(opener); }

 private:
  KZWorkspace() = default;

  Opener m_opener;
};
