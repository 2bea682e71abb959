#include "host/KZUtility/KZWorkspace.h"

#include <QDesktopServices>

KZWorkspace& KZWorkspace::sharedWorkspace() {
  // Never destroyed: its opener may hold what a host tears down by itself.
  static KZWorkspace* const workspace = new KZWorkspace;
  return *workspace;
}

bool KZWorkspace::openURL(const QUrl& url) {
  if (!url.isValid() || url.isRelative()) return false;
  return m_opener ? m_opener(url) : QDesktopServices::openUrl(url);
}
