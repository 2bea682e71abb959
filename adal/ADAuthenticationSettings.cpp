#include "adal/ADAuthenticationSettings.h"

#include <QDesktopServices>
#include <QMutex>
#include <QMutexLocker>
#include <utility>

#include "adal/ADTokenCache.h"

struct ADAuthenticationSettings::Private {
  mutable QMutex mutex;
  BrowserOpener opener;
  TextLookUp lookUp;
  TextLanguage language;
  ADRequestLimits limits;

  template <typename T>
  T copyOf(const T& value) const {
    const QMutexLocker lock(&mutex);
    return value;
  }
  template <typename T>
  void assign(T& target, T value) {
    const QMutexLocker lock(&mutex);
    target = std::move(value);
  }
};

ADAuthenticationSettings::ADAuthenticationSettings() : d(std::make_unique<Private>()) {}
ADAuthenticationSettings::~ADAuthenticationSettings() = default;

ADAuthenticationSettings& ADAuthenticationSettings::sharedInstance() {
  static ADAuthenticationSettings* const instance = new ADAuthenticationSettings;
  return *instance;
}

void ADAuthenticationSettings::setDefaultStorageDelegate(ADTokenCacheDelegate* delegate) {
  ADTokenCache::defaultCache().setDelegate(delegate);
}

void ADAuthenticationSettings::setBrowserOpener(BrowserOpener opener) {
  d->assign(d->opener, std::move(opener));
}
void ADAuthenticationSettings::setTextLookUp(TextLookUp lookUp, TextLanguage language) {
  d->assign(d->lookUp, std::move(lookUp));
  d->assign(d->language, std::move(language));
}
void ADAuthenticationSettings::setLimits(const ADRequestLimits& limits) {
  d->assign(d->limits, limits);
}

bool ADAuthenticationSettings::openBrowser(const QUrl& address) const {
  const BrowserOpener opener = d->copyOf(d->opener);
  return opener ? opener(address) : QDesktopServices::openUrl(address);
}

QString ADAuthenticationSettings::text(const char* english) const {
  const TextLookUp lookUp = d->copyOf(d->lookUp);
  return lookUp ? lookUp(english) : QString::fromUtf8(english);
}

QString ADAuthenticationSettings::textLanguage() const {
  const TextLanguage language = d->copyOf(d->language);
  return language ? language() : QStringLiteral("en");
}

ADRequestLimits ADAuthenticationSettings::limits() const {
  return d->copyOf(d->limits);
}
