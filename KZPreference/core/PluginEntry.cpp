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
  ADAuthenticationSettings::sharedInstance().setTextLookUp(&localizedString, &localizedLanguage);
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
  const bool isCleared = clearCacheWithError(&status);
  if (!isCleared && error) *error = QStringLiteral("%1 %2").arg(status.domain).arg(status.code);
  return isCleared;
}

QString PluginEntry::defaultSavePath() const {
  return ::defaultSavePath();
}

bool PluginEntry::readFromFile(const QString& path) {
  return ADMivraCacheDelegate::sharedInstance().readFromFile(path);
}

bool PluginEntry::writeToFile(const QString& path) {
  return ADMivraCacheDelegate::sharedInstance().writeToFile(path);
}

qint32 PluginEntry::readFromKeychain() {
  return ADMivraCacheDelegate::sharedInstance().readFromKeychain();
}

qint32 PluginEntry::writeToKeychain() {
  return ADMivraCacheDelegate::sharedInstance().writeToKeychain();
}

bool PluginEntry::clearCacheWithError(OSStatusError* error) {
  return ADMivraCacheDelegate::sharedInstance().clearCacheWithError(error);
}
