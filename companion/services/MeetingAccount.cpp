#include "companion/services/MeetingAccount.h"

#include <algorithm>

#include "companion/exchange/ExchangeMeetings.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr int kMostDays = 31;

// Why no meetings are listed from there; null for Outlook.
QString otherSourceText(const QString& source) {
  if (source == kKZCalendarIntegrationSourceOutlook) return {};
  if (source == kKZCalendarIntegrationSourceGoogle || source == kKZCalendarIntegrationSourceMivRa) {
    return QStringLiteral(
        "The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. "
        "Choose it in Preferences, Meetings.");
  }
  return QStringLiteral(
      "No calendar is chosen. Choose Microsoft Outlook in Preferences, Meetings, to see your next meetings.");
}

}  // namespace

QString refusedPasswordText() {
  return QStringLiteral(
      "Exchange did not accept the saved user name and password. Detect the account again in Preferences, "
      "Meetings.");
}

MeetingAccount readMeetingAccount() {
  const Dictionary calendar = KZPlistFileHandle::sharedInstance().calendarIntegration();
  MeetingAccount account;
  account.missing = otherSourceText(textValue(calendar, kKZCalendarIntegrationSource));
  if (!account.missing.isNull()) return account;
  account.exchange = dictionaryValue(calendar, kKZCalendarIntegrationExchange);
  account.isOnline = isSet(account.exchange, kKZCalendarIntegrationIsOnline);
  account.days = std::clamp(textValue(calendar, kKZCalendarIntegrationDays).toInt(), 1, kMostDays);
  if (meetingAddress(account.exchange).isEmpty()) {
    account.missing =
        QStringLiteral("No account is applied yet. Enter your email address in Preferences, Meetings.");
  } else if (!flagValue(account.exchange, kKZCalendarIntegrationOnpremiseCredValid).value_or(true)) {
    // Sending the refused password again could lock the account.
    account.missing = refusedPasswordText();
  }
  return account;
}

int announcedMinutes() {
  const Dictionary settings = KZPlistFileHandle::sharedInstance().meetingNotification();
  if (!isSet(settings, kKZMeetintNotificationToast)) return 0;
  return textValue(settings, kKZMeetintNotificationToastMinutes).toInt();
}
