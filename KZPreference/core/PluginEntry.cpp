#include "KZPreference/core/PluginEntry.h"

#include "KZPreference/authentication/ADMivraCacheDelegate.h"
#include "KZPreference/authentication/ADTokenCacheWrapper.h"
#include "KZPreference/authentication/AdalMivraLogDelegate.h"
#include "KZPreference/core/KZPreferenceCore.h"
#include "KZPreference/layout/Resources.h"
#include "adal/ADAuthenticationSettings.h"

PluginEntry::PluginEntry() {
  AdalMivraLogDelegate::load();
  ADMivraCacheDelegate::load();
  ADAuthenticationSettings::sharedInstance().setTextLookUp(&localizedString);
}

KZPluginCoreMgr* PluginEntry::core() {
  return &KZPreferenceCore::sharedInstance();
}

void PluginEntry::shutDown() {
  KZPreferenceCore::shutDown();
}

Dictionary PluginEntry::getAccessTokenByEmail(const QString& email, const QString& username) {
  return ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail(email, username);
}

bool PluginEntry::clearCacheWithError(QString* error) {
  OSStatusError status;
  const bool isCleared = ADMivraCacheDelegate::sharedInstance().clearCacheWithError(&status);
  if (!isCleared && error) *error = QStringLiteral("%1 %2").arg(status.domain).arg(status.code);
  return isCleared;
}
