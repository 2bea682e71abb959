#include "KZPreference/panes/meetings/CalendarIntegrationAssist.h"

#include "KZPreference/authentication/ADTokenCacheWrapper.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

Dictionary CalendarIntegrationAssist::getCalendarIntegrationPrefs() const {
  return KZPlistFileHandle::sharedInstance().calendarIntegration().value_or(Dictionary());
}

Dictionary CalendarIntegrationAssist::exchangePrefs() const {
  return dictionaryValue(getCalendarIntegrationPrefs(), kKZCalendarIntegrationExchange);
}

bool CalendarIntegrationAssist::isOLAccountApplied() const {
  const Dictionary exchange = exchangePrefs();
  if (textValue(exchange, kKZCalendarIntegrationExchangeExternalUrl).isEmpty() &&
      textValue(exchange, kKZCalendarIntegrationExchangeInternalUrl).isEmpty()) {
    return false;
  }
  return isCredentialExisting();
}

bool CalendarIntegrationAssist::isCredentialExisting() const {
  const Dictionary exchange = exchangePrefs();
  if (isSet(exchange, kKZCalendarIntegrationIsOnline)) {
    const Dictionary token = ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail(
        textValue(exchange, kKZCalendarIntegrationExchangeEmail),
        textValue(exchange, kKZCalendarIntegrationExchangeUsername));
    return !textValue(token, QRT_ListingMeeting_exchOnlineToken).isEmpty();
  }
  QString username;
  QString password;
  KZKeyChainHandle::sharedInstance().getOutlookUsername(&username, &password);
  return !username.isEmpty() && !password.isEmpty();
}

bool CalendarIntegrationAssist::isValidEmailAddress(const QString& email) const {
  const qsizetype at = email.indexOf(u'@');
  return at > 0 && at == email.lastIndexOf(u'@') && at < email.size() - 1;
}
