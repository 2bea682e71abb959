#include "companion/app/DemoUser.h"

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace demouser {
namespace {

const QString kGuestKey = QStringLiteral("companionGuest");
const QString kIsGuestKey = QStringLiteral("companionIsGuest");
const QString kName = QStringLiteral("name");
const QString kEmail = QStringLiteral("email");

QString textOr(const QString& text, const char* fallback) {
  return text.isNull() ? QString::fromLatin1(fallback) : text;
}

void becomeGuest(KZPlistFileHandle& store) {
  const Dictionary guest = store.value(kGuestKey).toMap();
  store.setDisplayName(textOr(textValue(guest, kName), "Gustav Guest"));
  store.setUserName(textOr(textValue(guest, kEmail), "gustav.guest@example.com"));
}

void becomeSignedIn(KZPlistFileHandle& store) {
  store.setDisplayName(QStringLiteral("Ada Example"));
  store.setUserName(QStringLiteral("ada@example.com"));
}

}  // namespace

void become(Variant variant) {
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  const bool wasGuest = asFlag(store.value(kIsGuestKey)).value_or(false);
  const bool isGuest = variant == Variant::Guest;
  if (wasGuest && !isGuest) {
    store.setValue(kGuestKey, Dictionary{{kName, store.displayName()}, {kEmail, store.userName()}});
  }
  if (store.siteName().isNull()) store.setSiteName(QStringLiteral("meetings.sandbox.example"));
  if (isGuest && !wasGuest) becomeGuest(store);
  if (!isGuest) becomeSignedIn(store);
  store.setValue(kIsGuestKey, isGuest);
}

Dictionary record() {
  Dictionary record = KZPlistFileHandle::sharedInstance().preferenceInfo().value_or(Dictionary());
  if (record.isEmpty()) {
    record = {{QRT_Preference_PMRUrl, QStringLiteral("https://sandbox.example/meet/ada")},
              {QRT_Preference_PMRSipUrl, QStringLiteral("ada@sandbox.example")}};
  }
  record.insert(QStringLiteral("disableCalendarIntegration"), true);
  record.insert(QStringLiteral("enableListGoogleCalendarMeeting"), true);
  return record;
}

}  // namespace demouser
