#pragma once

#include <QString>
#include <QUrl>
#include <chrono>
#include <functional>
#include <memory>

#include "adal/ADALExport.h"

class ADTokenCacheDelegate;

// Limits of every request.
struct ADRequestLimits {
  std::chrono::milliseconds signIn = std::chrono::minutes(10);    // from the browser's start to its redirect
  std::chrono::milliseconds transfer = std::chrono::seconds(30);  // from a request to its complete response
  std::chrono::milliseconds browserWait = std::chrono::seconds(5);     // its page for the outcome
  std::chrono::milliseconds browserReload = std::chrono::seconds(30);  // that page, after the end
  qint64 answerBytes = 1024 * 1024;
};

// The settings of the whole library. Set them on the main thread before the first request; they are read on
// any thread.
class ADAL_EXPORT ADAuthenticationSettings final {
 public:
  using BrowserOpener = std::function<bool(const QUrl&)>;  // false: nothing opened it
  using TextLookUp = std::function<QString(const char*)>;  // the text in the user's language
  using TextLanguage = std::function<QString()>;           // that language: "de", "zh_CN"

  static ADAuthenticationSettings& sharedInstance();

  // Stores the default token cache. Not owned.
  void setDefaultStorageDelegate(ADTokenCacheDelegate* delegate);

  // An empty function restores the default: the desktop's browser, the English text.
  void setBrowserOpener(BrowserOpener opener);
  void setTextLookUp(TextLookUp lookUp, TextLanguage language);
  void setLimits(const ADRequestLimits& limits);

  bool openBrowser(const QUrl& address) const;
  QString text(const char* english) const;
  QString textLanguage() const;
  ADRequestLimits limits() const;

 private:
  ADAuthenticationSettings();
  ~ADAuthenticationSettings();

  struct Private;
  std::unique_ptr<Private> d;
};
