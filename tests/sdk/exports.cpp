// A host that uses what the plug-in exports: its constants and the storage of its token cache.
#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QLibrary>
#include <QPluginLoader>
#include <utility>

#include "KZPreference/authentication/AppRegistration.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "host/KZFoundation/KZTokenCacheStorage.h"
#include "host/KZFoundation/KZTokenLookup.h"
#include "host/KZUtility/KZKeyChainHandle.h"

namespace {

int failures = 0;

void expect(bool isTrue, const QString& what) {
  if (isTrue) return;
  ++failures;
  qWarning() << "FAIL:" << what;
}

template <typename Value>
void expectExport(const char* name, const Value& value) {
  const auto* exported = reinterpret_cast<const Value*>(QLibrary(PLUGIN_FILE).resolve(name));
  expect(exported && *exported == value, QString("%1 is exported as the header has it").arg(name));
}

void useConstants() {
  const std::pair<const char*, qint32> metrics[] = {
      {"defaultPrefsViewWidth", defaultPrefsViewWidth},
      {"marginAtLeftEdge", marginAtLeftEdge},
      {"marginAtRightEdge", marginAtRightEdge},
      {"marginAtTopEdge", marginAtTopEdge},
      {"marginAtBottomEdge", marginAtBottomEdge},
      {"secondMarginAtLeftEdge", secondMarginAtLeftEdge},
      {"thirdMarginAtLeftEnd", thirdMarginAtLeftEnd},
      {"marginBetweenSubViews", marginBetweenSubViews},
      {"marginBetweenLabelAndContent", marginBetweenLabelAndContent},
      {"marginBetweenContentAndButton", marginBetweenContentAndButton},
      {"marginLabelToContent", marginLabelToContent},
      {"verticalMarginFirstToSecondLevel", verticalMarginFirstToSecondLevel},
      {"commonLabelHeight", commonLabelHeight},
      {"popupButtonWidth", popupButtonWidth},
      {"popupButtonHeight", popupButtonHeight},
      {"marginPopupButtonToLabel", marginPopupButtonToLabel},
      {"checkboxButtonHeight", checkboxButtonHeight},
      {"boldLabelFontSize", boldLabelFontSize},
      {"labelFontSize", labelFontSize}};
  for (const auto& [name, value] : metrics) expectExport(name, value);
  expectExport("appRegistration_clientId", appRegistration_clientId);
  expectExport("appRegistration_redirectUri", appRegistration_redirectUri);
}

// Any blob will do: what is no token cache is kept all the same, and has no tokens.
void useStorage(KZTokenCacheStorage& storage, KZTokenLookup& lookup) {
  constexpr qint32 itemNotFound = -25300;
  const QByteArray blob("\0blob\xff", 6);
  const QString path = QDir::current().filePath("token-cache");
  KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();

  keychain.commitOutlookOnlineData(blob);
  expect(storage.readFromKeychain() == 0, "the blob is read from the keychain");
  expect(storage.writeToFile(path), "the file is written");
  for (const QString& wrong : {QDir::currentPath(), path + "/below-a-file"}) {
    expect(!storage.writeToFile(wrong), "not written: " + wrong);
  }
  OSStatusError error;
  expect(storage.clearCacheWithError(&error) && error.code == 0, "the cache is cleared");
  expect(storage.readFromKeychain() == itemNotFound, "the keychain is empty");
  expect(!storage.writeToFile(path), "nothing to write");

  for (const QString& wrong : {path + "-missing", QDir::currentPath(), QString("/dev/zero")}) {
    expect(storage.readFromFile(path) && !storage.readFromFile(wrong), "not read: " + wrong);
    expect(storage.writeToKeychain() == itemNotFound, "nothing to keep");
  }
  expect(storage.readFromFile(path), "the file is read");
  expect(storage.writeToKeychain() == 0 && keychain.getOutlookOnlineData() == blob, "the blob is back");
  expect(lookup.getAccessTokenByEmail("ann@brenn.example", {}).isEmpty(), "a damaged blob has no tokens");
  expect(storage.defaultSavePath().startsWith(QDir::homePath()), "the usual path");
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  useConstants();
  QObject* const plugin = QPluginLoader(PLUGIN_FILE).instance();
  auto* storage = qobject_cast<KZTokenCacheStorage*>(plugin);
  auto* lookup = qobject_cast<KZTokenLookup*>(plugin);
  if (!storage || !lookup) qFatal("the plug-in offers no token cache");
  useStorage(*storage, *lookup);
  return failures == 0 ? 0 : 1;
}
